#pragma once

#include <QElapsedTimer>
#include <QMessageBox>

/// A message box that nobody answers by mistake: plain letters press no button, and one that the person did
/// not ask for takes no key in its first half second.
class MessageBox : public QMessageBox {
    Q_OBJECT

public:
    enum class Came { OnRequest, Unasked };
    MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons, QWidget* below,
               Came came);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] bool Deaf() const;
    Came came_;
    QElapsedTimer shown_;
};
