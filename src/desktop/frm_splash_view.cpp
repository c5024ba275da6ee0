#include "desktop/frm_splash_view.h"

#include "desktop/convert.h"
#include "desktop/icons.h"
#include "desktop/paper_surface.h"
#include "desktop/paper_text.h"
#include "program/keys.h"
#include "program/program.h"
#include "shell/frm_splash.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

// The main window is not there yet: the splash stands by itself.
FrmSplashView::FrmSplashView(Program& program, frmSplash& window, QWidget*, std::function<void()> afterEvent)
    : WindowView(program, window, nullptr, std::move(afterEvent)), splash_(window) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setWindowIcon(icons::Program());
    setAccessibleName(tr("Quillbrook starts. Press Enter to continue."));
    setAttribute(Qt::WA_OpaquePaintEvent);
    const double scale = static_cast<double>(logicalDpiX()) / paper::kTwipsPerInch;
    setFixedSize(qRound(static_cast<double>(window.Picture.Width) * scale),
                 qRound(static_cast<double>(window.Picture.Height) * scale));
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        move(screen->availableGeometry().center() - rect().center());
    }
    setFocusPolicy(Qt::StrongFocus);
}

void FrmSplashView::Follow() {
    WindowView::Follow();
    if (!(splash_.Picture == shown_)) {
        shown_ = splash_.Picture;
        QStringList words;
        for (const SplashText& text : shown_.Texts) {
            words.push_back(convert::ToQString(text.Text));
        }
        words.removeDuplicates();
        setAccessibleDescription(words.join(QStringLiteral(". ")));
        update();
    }
}

void FrmSplashView::PaintGround(QPainter& painter) const {
    const QColor ground = convert::ToQColor(shown_.BackColor);
    QLinearGradient fall(0, 0, 0, height());
    fall.setColorAt(0, ground.darker(115));
    fall.setColorAt(1, ground.darker(260));
    painter.fillRect(rect(), fall);
    constexpr QColor kEdge(255, 255, 255, 60);
    painter.setPen(QPen(kEdge, 1));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    constexpr int kLogo = 72;
    const QRect logo((width() - kLogo) / 2, height() / 4 - kLogo / 2, kLogo, kLogo);
    if (splash_.imgLogo.Visible) {
        icons::Program().paint(&painter, logo);
    }
}

void FrmSplashView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter);
    const double scale = static_cast<double>(logicalDpiX()) / paper::kTwipsPerInch;
    painter.scale(scale, scale);
    QFont font(convert::ToQString(shown_.FontName));
    for (const SplashText& text : shown_.Texts) {
        font.setPixelSize(qRound(static_cast<double>(text.FontSize) * paper::kTwipsPerPoint));
        font.setBold(text.Bold);
        painter.setFont(font);
        painter.setPen(convert::ToQColor(text.ForeColor));
        painter.drawText(QPointF(static_cast<double>(text.X),
                                 static_cast<double>(text.Y) + painter.fontMetrics().ascent()),
                         convert::ToQString(text.Text));
    }
}

void FrmSplashView::mousePressEvent(QMouseEvent*) {
    Do([&] { splash_.Form_Click(program_); });
}

void FrmSplashView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Do([&] { splash_.Form_KeyDown(program_, keys::kEnter); });
        return;
    }
    WindowView::keyPressEvent(event);
}
