#include "platform/Date.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

TEST_CASE("A date survives its text form, and only real dates are read") {
    CHECK(Date::FromSQLDateTime("2024-02-29 23:59:07").value().SQLDateTime() == "2024-02-29 23:59:07");
    for (const char* bad : {"", "2026-02-29 00:00:00", "2026-13-01 00:00:00", "2026-01-01 24:00:00",
             "2026-01-01T00:00:00", "2026-01-01", "2026-01-01 00:00:00 ", "x026-01-01 00:00:00"}) {
        CHECK_FALSE(Date::FromSQLDateTime(bad).has_value());
    }
}
