#include "platform/Date.h"

#include "platform/Text.h"

#include <charconv>
#include <chrono>
#include <cstdio>

namespace tessarolyne {

namespace {

std::chrono::year_month_day CalendarDay(const Date& date) {
    return std::chrono::year_month_day(std::chrono::year(date.year),
        std::chrono::month(static_cast<unsigned>(date.month)),
        std::chrono::day(static_cast<unsigned>(date.day)));
}

// Reads text as the shape says: 'd' is a decimal digit, any other character is itself.
bool HasShape(std::string_view text, std::string_view shape) {
    if (text.size() != shape.size()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (shape[i] == 'd' ? !IsDigit(text[i]) : text[i] != shape[i]) {
            return false;
        }
    }
    return true;
}

int Number(std::string_view digits) {
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

} // namespace

std::string Date::SQLDateTime() const {
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", year, month, day, hour, minute, second);
    return text;
}

std::int64_t Date::TotalSeconds() const {
    constexpr auto epoch = std::chrono::sys_days(std::chrono::year(1904) / 1 / 1);
    const auto days = (std::chrono::sys_days(CalendarDay(*this)) - epoch).count();
    return static_cast<std::int64_t>(days) * 86400 + std::int64_t{3600} * hour + std::int64_t{60} * minute +
           second;
}

std::optional<Date> Date::FromSQLDateTime(std::string_view text) {
    if (!HasShape(text, "dddd-dd-dd dd:dd:dd")) {
        return std::nullopt;
    }
    const Date date{Number(text.substr(0, 4)), Number(text.substr(5, 2)), Number(text.substr(8, 2)),
        Number(text.substr(11, 2)), Number(text.substr(14, 2)), Number(text.substr(17, 2))};
    if (!CalendarDay(date).ok() || date.hour > 23 || date.minute > 59 || date.second > 59) {
        return std::nullopt;
    }
    return date;
}

} // namespace tessarolyne
