# The package that hosts find: `find_package(OnBoardUI)` gives the targets OnBoardUI::OnBoardUI and
# OnBoardUI::framework_main, with the framework layer and the support libraries behind them.

# The target's headers, for whoever links it: here, and in a folder of their own where installed.
# They have no business in a folder that others search, with names like EFB.h and Printing.h.
function(offer_headers target folder)
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${folder}>" "$<INSTALL_INTERFACE:include/OnBoardUI/${target}>")
    install(DIRECTORY "${folder}/" DESTINATION "include/OnBoardUI/${target}")
endfunction()

function(install_library target)
    add_library(OnBoardUI::${target} ALIAS ${target})
    install(TARGETS ${target} EXPORT OnBoardUITargets
        RUNTIME DESTINATION bin ARCHIVE DESTINATION lib LIBRARY DESTINATION lib)
endfunction()

function(install_package)
    include(CMakePackageConfigHelpers)
    set(folder lib/cmake/OnBoardUI)
    set(runtime_folder bin)
    configure_package_config_file(
        "${PROJECT_SOURCE_DIR}/cmake/OnBoardUIConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/OnBoardUIConfig.cmake"
        INSTALL_DESTINATION ${folder} PATH_VARS runtime_folder
        NO_CHECK_REQUIRED_COMPONENTS_MACRO)
    # Until 1.0 a new minor version may break hosts.
    write_basic_package_version_file(
        "${PROJECT_BINARY_DIR}/OnBoardUIConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
    install(FILES
        "${PROJECT_BINARY_DIR}/OnBoardUIConfig.cmake"
        "${PROJECT_BINARY_DIR}/OnBoardUIConfigVersion.cmake"
        DESTINATION ${folder})
    install(EXPORT OnBoardUITargets NAMESPACE OnBoardUI:: DESTINATION ${folder})
endfunction()
