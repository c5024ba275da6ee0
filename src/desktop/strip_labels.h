#pragma once

#include <vector>

class QLabel;
struct StripLabel;

/// The labels of the main window's strips, each with the record that it shows.
class StripLabels {
public:
    void Add(QLabel& widget, const StripLabel& record);
    /// Sets what differs from the records: words, tips, what is hidden, colours.
    void Follow() const;

private:
    struct Shown {
        QLabel* Widget;
        const StripLabel* Record;
    };
    std::vector<Shown> labels_;
};
