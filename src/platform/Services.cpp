#include "platform/Services.h"

#include "platform/Text.h"

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
    std::string shape(text);
    std::replace_if(shape.begin(), shape.end(), IsDigit, '9');
    if (shape != "9999-99-99 99:99:99") {
        return std::nullopt;
    }
    const auto number = [&](std::size_t at) { return std::stoi(std::string(text.substr(at))); };
    const Date date{number(0), number(5), number(8), number(11), number(14), number(17)};
    if (!date.CalendarDay().ok() || date.hour > 23 || date.minute > 59 || date.second > 59) {
        return std::nullopt;
    }
    return date;
}

} // namespace tessarolyne
