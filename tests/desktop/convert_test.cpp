#include "desktop/convert.h"
#include "desktop/paper_text.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <string>

namespace {

QImage Drawn(std::string_view text) {
    QImage image(400, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(0.1, 0.1);
    paper::Draw(painter, {0, 0}, text, {"Times New Roman", 10, false, false});
    return image;
}

TEST(Incoming, EveryLineEndIsABlank) {
    const QString text = QStringLiteral("a\nb\r\nc\rd\ve\ff") + QChar(0x85) + QStringLiteral("g") +
                         QChar(QChar::LineSeparator) + QStringLiteral("h") +
                         QChar(QChar::ParagraphSeparator) + QStringLiteral("i\tj");
    const convert::Incoming incoming = convert::FromPerson(text);
    EXPECT_EQ(incoming.Text, "a b c d e f g h i j");
    EXPECT_EQ(incoming.Refused, 0);
}

TEST(Incoming, OtherControlCharactersAreDroppedAndCounted) {
    QString text = QStringLiteral("a");
    for (const char16_t control : {u'\x01', u'\x08', u'\x1B', u'\x7F', u'\x81', u'\x9D', u'\0'}) {
        text += QChar(control);
    }
    text += QStringLiteral("b");
    const convert::Incoming incoming = convert::FromPerson(text);
    EXPECT_EQ(incoming.Text, "ab");
    EXPECT_EQ(incoming.Refused, 7);
}

TEST(OwnTexts, ComeBackFromAWidgetByteForByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    EXPECT_EQ(convert::ToModel(convert::ToQString(all)), all);
}

TEST(ControlBytes, StandAsBlanksOnScreenAndPaper) {
    const QtTextMeasure measure;
    const TextFont font{"Times New Roman", 10, false, false};
    for (int byte = 0; byte < 0xA0; ++byte) {
        const std::string text = std::string("a") + static_cast<char>(byte) + "b";
        if (!(byte < 0x20 || byte == 0x7F || byte == 0x81 || byte == 0x9D)) {
            continue;
        }
        EXPECT_EQ(measure.Width(text, font), measure.Width("a b", font)) << byte;
        EXPECT_EQ(Drawn(text), Drawn("a b")) << byte;
    }
    EXPECT_NE(Drawn("a b"), Drawn("ab"));
}

} // namespace
