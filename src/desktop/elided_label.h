#pragma once

#include <QFontMetrics>
#include <QLabel>

/// A label that leaves something out where it is too narrow for its text, and then tells the whole of it as a
/// tip unless it has a tip of its own.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent);

    /// As much of a text as the width holds. Of a path the folders in the middle go first, for the name at
    /// its end is what one looks for; of other words the end goes.
    [[nodiscard]] static QString Fitting(const QString& text, const QFontMetrics& metrics, int width);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool Cut() const;
};
