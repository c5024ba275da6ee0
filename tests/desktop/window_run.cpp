#include "desktop/window_run.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>

#include <set>

void ExpectReachable(QDialog& dialog) {
    std::set<const QWidget*> wanted;
    for (QWidget* child : dialog.findChildren<QWidget*>()) {
        const bool own =
            !child->objectName().startsWith(QLatin1String("qt_")) && !child->objectName().isEmpty();
        if (!own || !child->isVisible() || !child->isEnabled() ||
            (child->focusPolicy() & Qt::TabFocus) == 0) {
            continue;
        }
        wanted.insert(child);
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(child);
        EXPECT_TRUE(spoken != nullptr && !spoken->text(QAccessible::Name).isEmpty())
            << child->objectName().toStdString();
    }
    std::set<const QWidget*> reached;
    for (std::size_t step = 0; step < 3 * wanted.size() + 6; ++step) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        for (const QWidget* at = QApplication::focusWidget(); at != nullptr; at = at->parentWidget()) {
            reached.insert(at);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const QWidget* child : wanted) {
        const bool within = child->parentWidget() != nullptr && reached.contains(child->parentWidget()) &&
                            child->parentWidget()->objectName() == QLatin1String("month");
        EXPECT_TRUE(within || reached.contains(child)) << child->objectName().toStdString();
    }
    EXPECT_LE(dialog.frameGeometry().width(), 1024);
    EXPECT_LE(dialog.frameGeometry().height(), 768);
}

void TypeCharacter(QWidget* widget, QChar character) {
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
    QApplication::sendEvent(widget, &event);
}
