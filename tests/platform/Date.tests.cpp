#include "platform/Date.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

TEST_CASE("A date survives its text form, and only real dates are read") {
    const Date date{2026, 2, 28, 23, 59, 7};
    CHECK(date.SQLDateTime() == "2026-02-28 23:59:07");
    CHECK(Date::FromSQLDateTime("2026-02-28 23:59:07") == date);
    CHECK(Date::FromSQLDateTime("2024-02-29 00:00:00").has_value());
    for (const char* bad : {"", "2026-02-29 00:00:00", "2026-13-01 00:00:00", "2026-01-01 24:00:00",
             "2026-01-01T00:00:00", "2026-01-01", "2026-01-01 00:00:00 ", "x026-01-01 00:00:00"}) {
        CAPTURE(bad);
        CHECK_FALSE(Date::FromSQLDateTime(bad).has_value());
    }
}

TEST_CASE("A new calendar day is a new day number, whatever the hours between") {
    const Date evening{2026, 11, 22, 23, 59, 59};
    const Date morning{2026, 11, 23, 0, 0, 0};
    CHECK(morning.TotalSeconds() - evening.TotalSeconds() == 1);
    CHECK(morning.TotalSeconds() / 86400 == evening.TotalSeconds() / 86400 + 1);
    CHECK(Date{}.TotalSeconds() == 0);
}
