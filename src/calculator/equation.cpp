#include "calculator/equation.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace modCalculator {

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

constexpr std::string_view kInOrder = "*/+-";

} // namespace

bool IsOperator(char character) {
    return kInOrder.find(character) != std::string_view::npos;
}

namespace {

/// A comma with a digit before it and three behind it, and no fourth.
bool BetweenThousands(std::string_view line, std::size_t at) {
    constexpr std::size_t kGroup = 3;
    const std::string_view behind = line.substr(at + 1);
    return at > 0 && IsDigit(line[at - 1]) && behind.size() >= kGroup &&
           std::all_of(behind.begin(), behind.begin() + kGroup, IsDigit) &&
           (behind.size() == kGroup || !IsDigit(behind[kGroup]));
}

} // namespace

std::string PlainLine(std::string_view pasted) {
    std::string line(pasted);
    std::erase_if(line, [](char each) { return static_cast<unsigned char>(each) <= ' ' || each == '\xA0'; });
    std::string plain;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == ',' && BetweenThousands(line, at)) {
            continue;
        }
        plain += line[at] == 'x' || line[at] == 'X' ? '*' : line[at];
    }
    return plain;
}

bool IsPercentage(std::string_view equation) {
    return equation.size() >= 4 && IsDigit(equation.front()) && equation.ends_with("%=") &&
           IsDigit(equation[equation.size() - 3]);
}

bool IsEquation(std::string_view equation) {
    if (!equation.empty() && equation.front() == '.') {
        equation.remove_prefix(1);
    }
    return equation.size() >= 3 && IsDigit(equation.front()) && equation.back() == '=' &&
           IsDigit(equation[equation.size() - 2]);
}

std::optional<Parts> Split(std::string_view sum) {
    for (const char each : kInOrder) {
        if (const std::size_t at = sum.find(each); at != std::string_view::npos) {
            return Parts{sum.substr(0, at), each, sum.substr(at + 1)};
        }
    }
    return std::nullopt;
}

std::optional<double> Operand(std::string_view text) {
    std::string_view digits = text;
    if (!digits.empty() && digits.front() == '-') {
        digits.remove_prefix(1);
    }
    const bool plain =
        std::all_of(digits.begin(), digits.end(), [](char each) { return IsDigit(each) || each == '.'; });
    if (!plain || std::count(digits.begin(), digits.end(), '.') > 1 ||
        std::none_of(digits.begin(), digits.end(), IsDigit)) {
        return std::nullopt;
    }
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    return read.ec == std::errc() && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> Evaluate(const Parts& parts) {
    const std::optional<double> left = Operand(parts.Left);
    const std::optional<double> right = Operand(parts.Right);
    if (!left || !right || (parts.Operator == '/' && *right == 0)) {
        return std::nullopt;
    }
    double value = 0;
    switch (parts.Operator) {
    case '*':
        value = *left * *right;
        break;
    case '/':
        value = *left / *right;
        break;
    case '+':
        value = *left + *right;
        break;
    default:
        value = *left - *right;
        break;
    }
    return std::isfinite(value) ? std::optional(value + 0.0) : std::nullopt; // no minus before a zero
}

} // namespace modCalculator
