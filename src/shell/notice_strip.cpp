#include "shell/notice_strip.h"

#include "program/program.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace {

constexpr std::int64_t kLongEnough = 5000;
/// A longer pause between two keys is no reading time: the person looked elsewhere.
constexpr std::int64_t kLongestPause = 1000;

/// What a later notice of the same matter makes old: a key or text refused, a thing saved.
bool SameMatter(std::string_view one, std::string_view other) {
    if (one == other) {
        return true;
    }
    constexpr std::array<std::string_view, 2> kMatters{" not taken", " saved: "};
    return std::any_of(kMatters.begin(), kMatters.end(), [&](std::string_view matter) {
        return one.find(matter) != std::string_view::npos && other.find(matter) != std::string_view::npos;
    });
}

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
    std::erase_if(displaced_, [&](const Notice& notice) { return SameMatter(notice.Text, told); });
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
