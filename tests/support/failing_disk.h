#pragma once

#include <initializer_list>
#include <vector>

/// A disk that fails as told: while it lives, calls of the model's file layer come back with an error. The
/// linker leads those calls here; the rest of the process sees the disk as it is.
class FailingDisk {
public:
    enum class Call {
        Open,
        Read,
        Write,
        SetLength,
        GiveMode,
        Flush,
        Close,
        Rename,
        Move, ///< a rename over nothing
        Link,
        Unlink,
        OpenIn, ///< in a folder that is open
        OpenFolder,
        ListFolder
    };
    struct Failure {
        Call What;
        int Nth;       ///< the how-manieth call of its kind, from 1
        int Error;     ///< the system's error number; 0 with a write: nothing is taken
        int Times = 1; ///< so many calls in a row
    };
    static constexpr int kForever = 1'000'000;

    explicit FailingDisk(std::initializer_list<Failure> failures);
    ~FailingDisk();
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;

    /// How many calls failed so far.
    [[nodiscard]] int Failed() const { return failed_; }
    [[nodiscard]] int CallsOf(Call call) const;

    /// Counts a call. Whether it is to fail; `error` takes the number then.
    bool Meets(Call call, int& error);

private:
    std::vector<Failure> failures_;
    std::vector<int> counts_;
    int failed_ = 0;
};
