# Qt's headers ask for it; nothing of ours uses it.
if(NOT TARGET WrapVulkanHeaders::WrapVulkanHeaders)
    add_library(WrapVulkanHeaders::WrapVulkanHeaders INTERFACE IMPORTED)
endif()
set(WrapVulkanHeaders_FOUND TRUE)
