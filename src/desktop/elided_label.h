#pragma once

#include <QLabel>

/// A label that ends in an ellipsis where it is too narrow for its text, and then tells the whole of it as a
/// tip unless it has a tip of its own.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool Cut() const;
};
