#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

// A date and time of the user's local calendar, to the second.
struct Date {
    int year = 1904;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    // The date without the time.
    std::chrono::year_month_day CalendarDay() const;

    // "2026-11-22 21:05:00".
    std::string SQLDateTime() const;
    // Reads what SQLDateTime writes; nothing for any other text, a day that the calendar doesn't have
    // included.
    static std::optional<Date> FromSQLDateTime(std::string_view text);

    bool operator==(const Date&) const = default;
};

} // namespace tessarolyne
