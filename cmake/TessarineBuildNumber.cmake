# The number of this build, which rises from one to the next: whoever packages the program gives it;
# else it is the number of commits. A source archive without a history has none.
set(TESSARINE_BUILD "" CACHE STRING "Number of this build; empty: that of the commits")
if(TESSARINE_BUILD STREQUAL "")
    execute_process(COMMAND git rev-list --count HEAD
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        OUTPUT_VARIABLE TESSARINE_BUILD OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
