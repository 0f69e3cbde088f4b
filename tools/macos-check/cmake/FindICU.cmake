# ICU, as a Mac has it from Homebrew: the headers and names of this machine's.
foreach(part uc i18n)
    if(NOT TARGET ICU::${part})
        find_library(ICU_${part}_LIBRARY icu${part} HINTS ${MACOS_CHECK_LIBRARIES} REQUIRED)
        add_library(ICU::${part} UNKNOWN IMPORTED)
        set_target_properties(ICU::${part} PROPERTIES IMPORTED_LOCATION ${ICU_${part}_LIBRARY}
                              INTERFACE_INCLUDE_DIRECTORIES ${MACOS_CHECK_LINUX})
    endif()
endforeach()
set(ICU_FOUND TRUE)
