# Reads CHANGELOG.md, the one place that tells what a release brings, for the software centres.

# Sets RESULT to the <release> elements of AppStream's metainfo for the releases in the file CHANGELOG, the newest
# first. Their headings are "## 1.2.3 (2026-12-31)"; for one without a day ("not yet released") today's counts, or
# that of SOURCE_DATE_EPOCH. Fails when the newest is not the project's version.
function(tessarolyne_releases changelog result)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${changelog}")
    file(READ "${changelog}" rest)
    string(REPLACE "&" "&amp;" rest "${rest}")
    string(REPLACE "<" "&lt;" rest "${rest}")
    string(REPLACE "`" "" rest "${rest}")
    # A change that goes on in the next line is indented there.
    string(REGEX REPLACE "\n +" " " rest "${rest}")
    set(newest "")
    set(xml "")
    set(end "")
    # Not a list of lines: the changes may have semicolons and brackets.
    while(rest MATCHES "^([^\n]*)\n(.*)$")
        set(line "${CMAKE_MATCH_1}")
        set(rest "${CMAKE_MATCH_2}")
        if(line MATCHES "^## ([0-9.]+) \\((.*)\\)$")
            set(version "${CMAKE_MATCH_1}")
            set(day "${CMAKE_MATCH_2}")
            set(type stable)
            if(NOT day MATCHES "^[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9]$")
                string(TIMESTAMP day "%Y-%m-%d" UTC)
                set(type development)
            endif()
            if(newest STREQUAL "")
                set(newest "${version}")
            endif()
            string(APPEND xml "${end}    <release version=\"${version}\" date=\"${day}\" type=\"${type}\">\n"
                   "      <description>\n        <ul>\n")
            set(end "        </ul>\n      </description>\n    </release>\n")
        elseif(line MATCHES "^- (.*)$")
            string(APPEND xml "          <li>${CMAKE_MATCH_1}</li>\n")
        endif()
    endwhile()
    if(NOT newest STREQUAL PROJECT_VERSION)
        message(FATAL_ERROR "The newest release in ${changelog} is \"${newest}\", the project's ${PROJECT_VERSION}.")
    endif()
    set(${result} "${xml}${end}" PARENT_SCOPE)
endfunction()
