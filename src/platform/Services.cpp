#include "platform/Services.h"

#include <algorithm>
#include <cstdio>

namespace tessarolyne {

std::chrono::year_month_day Date::CalendarDay() const {
    return std::chrono::year(year) / month / day;
}

std::string Date::SQLDateTime() const {
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", year, month, day, hour, minute, second);
    return text;
}

std::optional<Date> Date::FromSQLDateTime(std::string_view text) {
    Date date;
    std::sscanf(std::string(text).c_str(), "%4d-%2d-%2d %2d:%2d:%2d", &date.year, &date.month, &date.day,
        &date.hour, &date.minute, &date.second);
    if (std::count(text.begin(), text.end(), '-') != 2 || date.SQLDateTime() != text ||
        !date.CalendarDay().ok() || date.hour > 23 || date.minute > 59 || date.second > 59) {
        return std::nullopt;
    }
    return date;
}

} // namespace tessarolyne
