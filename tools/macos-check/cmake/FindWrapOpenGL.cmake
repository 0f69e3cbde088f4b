# Qt's headers ask for it; nothing of ours uses it.
if(NOT TARGET WrapOpenGL::WrapOpenGL)
    add_library(WrapOpenGL::WrapOpenGL INTERFACE IMPORTED)
endif()
set(WrapOpenGL_FOUND TRUE)
