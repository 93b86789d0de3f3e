# The application bundle of macOS, with its resources and its icon inside. Written from the documentation of CMake
# and Qt; never built, for want of a Mac. To be included where the target is made, which alone can use the icon's rule.
set(resources "${PROJECT_SOURCE_DIR}/resources")

set_target_properties(
    tessarolyne
    PROPERTIES OUTPUT_NAME Tessarolyne
               MACOSX_BUNDLE ON
               MACOSX_BUNDLE_INFO_PLIST "${resources}/macos/Info.plist.in")

foreach(folder pictures sounds)
    file(GLOB files CONFIGURE_DEPENDS "${resources}/${folder}/*.png" "${resources}/${folder}/*.wav")
    target_sources(tessarolyne PRIVATE ${files})
    set_source_files_properties(
        ${files} TARGET_DIRECTORY tessarolyne PROPERTIES MACOSX_PACKAGE_LOCATION "Resources/${folder}")
endforeach()

# As files of the bundle they follow each change; that of the program's own target makes them.
file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/*.ts")
foreach(source ${sources})
    get_filename_component(name "${source}" NAME_WE)
    set(catalogue "${PROJECT_BINARY_DIR}/share/tessarolyne/translations/${name}.qm")
    target_sources(tessarolyne PRIVATE "${catalogue}")
    set_source_files_properties(
        "${catalogue}" TARGET_DIRECTORY tessarolyne PROPERTIES GENERATED ON MACOSX_PACKAGE_LOCATION
                                                               Resources/translations)
endforeach()

# iconutil takes a folder of pictures under names that it prescribes: a size in points, twice that many pixels at @2x.
set(iconset "${PROJECT_BINARY_DIR}/Tessarolyne.iconset")
set(icon "${PROJECT_BINARY_DIR}/Tessarolyne.icns")
set(copies "")
foreach(pixels_and_name 16:16x16 32:16x16@2x 32:32x32 64:32x32@2x 128:128x128 256:128x128@2x 256:256x256 512:256x256@2x
                        512:512x512)
    string(REGEX MATCH "^([0-9]+):(.+)$" matched "${pixels_and_name}")
    set(pixels "${CMAKE_MATCH_1}x${CMAKE_MATCH_1}")
    list(APPEND pictures "${resources}/icons/hicolor/${pixels}/apps/${TESSAROLYNE_IDENTIFIER}.png")
    list(APPEND copies COMMAND "${CMAKE_COMMAND}" -E copy
         "${resources}/icons/hicolor/${pixels}/apps/${TESSAROLYNE_IDENTIFIER}.png"
         "${iconset}/icon_${CMAKE_MATCH_2}.png")
endforeach()
add_custom_command(
    OUTPUT "${icon}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${iconset}"
    ${copies}
    COMMAND iconutil --convert icns --output "${icon}" "${iconset}"
    DEPENDS ${pictures}
    VERBATIM)
target_sources(tessarolyne PRIVATE "${icon}")
set_source_files_properties(
    "${icon}" TARGET_DIRECTORY tessarolyne PROPERTIES GENERATED ON MACOSX_PACKAGE_LOCATION Resources)

# The installed bundle carries Qt along.
install(TARGETS tessarolyne BUNDLE DESTINATION .)
qt_generate_deploy_app_script(TARGET tessarolyne FILENAME_VARIABLE deploy NO_UNSUPPORTED_PLATFORM_ERROR)
install(SCRIPT "${deploy}")
