#include "shell/notice_strip.h"

#include "program/program.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::int64_t kLongEnough = 5000;
/// A longer pause between two keys is no reading time: the person looked elsewhere.
constexpr std::int64_t kLongestPause = 1000;

} // namespace

void NoticeStrip::Follow(const Program& program, std::int64_t now) {
    const std::string& told = program.main.Notice;
    if (told == told_ && program.main.NoticeRound == round_) {
        return;
    }
    told_ = told;
    round_ = program.main.NoticeRound;
    if (told.empty()) {
        return;
    }
    if (!shown_.Text.empty()) {
        displaced_.push_back(std::move(shown_));
    }
    std::erase_if(displaced_, [&](const Notice& notice) { return notice.Text == told; });
    shown_ = {told, 0};
    last_ = now;
}

void NoticeStrip::Activity(std::int64_t now) {
    shown_.OnShow += std::clamp(now - last_, std::int64_t{0}, kLongestPause);
    last_ = now;
    if (shown_.OnShow < kLongEnough) {
        return;
    }
    shown_ = {};
    if (!displaced_.empty()) {
        shown_ = std::move(displaced_.back());
        displaced_.pop_back();
    }
}
