# Qt for Linux asks for it; a Mac doesn't have it.
if(NOT TARGET XKB::XKB)
    add_library(XKB::XKB INTERFACE IMPORTED)
endif()
set(XKB_FOUND TRUE)
