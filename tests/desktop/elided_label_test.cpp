#include "desktop/elided_label.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

struct Shown {
    QFontMetrics metrics{QApplication::font()};
    [[nodiscard]] QString In(const QString& text, const QString& room) const {
        const QString shown = ElidedLabel::Fitting(text, metrics, Width(room));
        EXPECT_LE(Width(shown), Width(room)) << shown.toStdString();
        return shown;
    }
    [[nodiscard]] int Width(const QString& text) const { return metrics.horizontalAdvance(text); }
};

TEST(ElidedWords, OfAPathTheNameStaysAndTheFoldersInTheMiddleGo) {
    const Shown shown;
    const QString text =
        QStringLiteral("Proposal saved: /home/ann/Documents/Clients and Events/2008/Spring/Jane Roe.hef");
    EXPECT_EQ(shown.In(text, text), text);
    const QString cut = shown.In(text, QStringLiteral("Proposal saved: /home/ann/Docu/Spring/Jane Roe.hef"));
    EXPECT_TRUE(cut.startsWith(QStringLiteral("Proposal saved: /"))) << cut.toStdString();
    EXPECT_TRUE(cut.endsWith(QStringLiteral("/Jane Roe.hef"))) << cut.toStdString();
    EXPECT_TRUE(cut.contains(u'\u2026'));
    const QString least = shown.In(text, QStringLiteral("Proposed: /Jane Roe.hef"));
    EXPECT_TRUE(least.endsWith(QStringLiteral("Roe.hef"))) << least.toStdString();
}

TEST(ElidedWords, OfAFolderItsOwnNameStays) {
    const Shown shown;
    const QString cut = shown.In(QStringLiteral("Current Folder = /mnt/office/Events/Quillbrook/Proposals/"),
                                 QStringLiteral("Current Folder = /mnt/off/Proposals/"));
    EXPECT_TRUE(cut.endsWith(QStringLiteral("/Proposals/"))) << cut.toStdString();
}

TEST(ElidedWords, OfOtherWordsTheEndGoes) {
    const Shown shown;
    for (const QString& text :
         {QStringLiteral("The text was too long for one line; its end was not taken."),
          QStringLiteral("Deposit of 1/5/2008 for tables and/or chairs is not taken")}) {
        const QString cut = shown.In(text, text.left(text.size() / 2));
        EXPECT_TRUE(cut.endsWith(u'\u2026')) << cut.toStdString();
        EXPECT_TRUE(text.startsWith(cut.chopped(1))) << cut.toStdString();
    }
}

} // namespace
