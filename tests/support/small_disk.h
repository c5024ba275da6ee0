#pragma once

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

/// While it lives, no file of this process grows beyond so many bytes.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &before_), 0);
        rlimit small = before_;
        small.rlim_cur = bytes;
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~SmallDisk() {
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &before_), 0);
        std::signal(SIGXFSZ, handler_);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before_{};
};
