#pragma once

/// Scope objects for the program's flags: they put back what they found.

class ScopedFlag {
public:
    explicit ScopedFlag(bool& flag, bool value = true) : flag_(flag), found_(flag) { flag_ = value; }
    ~ScopedFlag() { flag_ = found_; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

private:
    bool& flag_;
    bool found_;
};

/// Runs something when the scope is left, by any way.
template <typename Action> class OnLeaving {
public:
    explicit OnLeaving(Action action) : action_(action) {}
    ~OnLeaving() { action_(); }
    OnLeaving(const OnLeaving&) = delete;
    OnLeaving& operator=(const OnLeaving&) = delete;

private:
    Action action_;
};
