#pragma once

#include <QElapsedTimer>
#include <QMessageBox>

/// A message box that is as wide as the lines of its text, as far as the screen goes. Plain letters press no
/// button; a box that came unasked takes no key until there was none for half a second, and in the middle of
/// typing, which may be slow, for as long as nobody pauses.
class MessageBox : public QMessageBox {
    Q_OBJECT
public:
    enum class Came { OnRequest, Unasked, AmidTyping };
    MessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons, QWidget* over,
               Came came);
    ~MessageBox() override;

    /// As wide as the lines of its texts, within that room for its inside; there lines wrap, and words longer
    /// than a line break.
    void FitInto(const QSize& room);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void KeepLines(const QSize& room);
    /// What base class and layout have made of the size, mended: it lets no text be wider than its own limit.
    void Fit();
    Came came_;
    QSize room_; ///< for the box's inside
    /// What a person who goes on typing does not reach: one that reads and looks for the next letter needs
    /// longer than half a second from key to key.
    [[nodiscard]] qint64 Pause() const;
    QElapsedTimer quiet_; ///< since the box came or a key was pressed; not valid when keys are taken
};
