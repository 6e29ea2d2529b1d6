# One declarative call per target: the kinds of targets, and the libraries that they must not reach, directly or through
# others.
#   vlt_add_module(name [LOGIC|PLAIN] ...)   static library vlt::name
#       LOGIC  rules, parsing, file formats: no Qt Widgets
#       PLAIN  shared with the plug-ins: no Qt at all
#   vlt_add_plugin(name ...)                 loadable module <name>.so: no Qt at all
#   vlt_add_program(name [LOGIC] ...)        executable
#   vlt_add_test(file.cpp [GUI] LIBS ...)    one test program per tst_*.cpp, with the name of the file
#       GUI      on an X server of its own, with the screen size of a small laptop
#       HOSTILE  tests readers of files from unknown sources: ./test.sh runs it under the sanitizers too
# vlt_check_architecture() checks the complete link graph and stops the configure step on a breach.

# All targets of an installation tree, without the tests.
add_custom_target(programs)
# The tests marked HOSTILE.
add_custom_target(hostile_tests)

function(vlt_apply_defaults target)
  target_compile_features(${target} PRIVATE cxx_std_20)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-restrict) # false alarms on std::string (GCC bug 105651)
  endif()
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  if(VLT_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                             -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  else() # installed programs read files from unknown sources
    set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
    target_compile_options(${target} PRIVATE
      "$<${optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
    target_link_options(${target} PRIVATE "$<${optimised}:LINKER:-z,relro,-z,now>")
  endif()
  if(VLT_TIDY)
    set_target_properties(${target} PROPERTIES CXX_CLANG_TIDY "clang-tidy-14;--quiet")
  endif()
endfunction()

function(vlt_add_module name)
  cmake_parse_arguments(M "LOGIC;PLAIN" "" "SOURCES;PUBLIC;PRIVATE;INCLUDE" ${ARGN})
  add_library(vlt_${name} STATIC ${M_SOURCES})
  add_library(vlt::${name} ALIAS vlt_${name})
  vlt_apply_defaults(vlt_${name})
  if(NOT M_INCLUDE)
    set(M_INCLUDE ${PROJECT_SOURCE_DIR}/src)
  endif()
  target_include_directories(vlt_${name} PUBLIC ${M_INCLUDE})
  target_link_libraries(vlt_${name} PUBLIC ${M_PUBLIC} PRIVATE ${M_PRIVATE})
  if(M_LOGIC)
    set_property(GLOBAL APPEND PROPERTY VLT_WIDGET_FREE_TARGETS vlt_${name})
  elseif(M_PLAIN)
    set_property(GLOBAL APPEND PROPERTY VLT_QT_FREE_TARGETS vlt_${name})
    set_target_properties(vlt_${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  endif()
endfunction()

function(vlt_add_plugin name)
  cmake_parse_arguments(P "" "" "SOURCES;PRIVATE;INCLUDE" ${ARGN})
  add_library(${name} MODULE ${P_SOURCES})
  vlt_apply_defaults(${name})
  target_include_directories(${name} PRIVATE ${P_INCLUDE})
  target_link_libraries(${name} PRIVATE ${P_PRIVATE})
  set_target_properties(${name} PROPERTIES PREFIX "" AUTOMOC OFF AUTOUIC OFF AUTORCC OFF
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/driver)
  set_property(GLOBAL APPEND PROPERTY VLT_QT_FREE_TARGETS ${name})
  add_dependencies(programs ${name})
  install(TARGETS ${name} LIBRARY DESTINATION driver)
endfunction()

function(vlt_add_program name)
  cmake_parse_arguments(P "LOGIC" "" "SOURCES;PRIVATE" ${ARGN})
  add_executable(${name} ${P_SOURCES})
  vlt_apply_defaults(${name})
  target_link_libraries(${name} PRIVATE ${P_PRIVATE})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
  if(P_LOGIC)
    set_property(GLOBAL APPEND PROPERTY VLT_WIDGET_FREE_TARGETS ${name})
  endif()
  add_dependencies(programs ${name})
  install(TARGETS ${name} RUNTIME DESTINATION .)
endfunction()

# Under the sanitizers libraries stay loaded, so that reports of leaks have function names.
function(vlt_need_loaded_libraries)
  if(NOT TARGET vlt_keep_loaded)
    file(WRITE ${PROJECT_BINARY_DIR}/keep_loaded.cpp "extern \"C\" int dlclose(void *) { return 0; }\n")
    add_library(vlt_keep_loaded SHARED ${PROJECT_BINARY_DIR}/keep_loaded.cpp)
    set_target_properties(vlt_keep_loaded PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libasan.so
                    OUTPUT_VARIABLE runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
    file(REAL_PATH ${runtime} runtime)
    set(VLT_ASAN_RUNTIME ${runtime} CACHE INTERNAL "")
  endif()
endfunction()

# The limit ends a test that hangs. It is high because a busy machine is slow.
set(VLT_TEST_TIMEOUT_S 600)

# Tests run under a German locale (decimal comma) and with settings in a private directory.
function(vlt_add_test file)
  cmake_parse_arguments(T "GUI;HOSTILE" "" "LIBS;ENV;DEPENDS" ${ARGN})
  cmake_path(GET file STEM name)
  add_executable(${name} ${file})
  vlt_apply_defaults(${name})
  target_link_libraries(${name} PRIVATE Qt6::Test ${T_LIBS})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests) # support, gui
  if(T_DEPENDS)
    add_dependencies(${name} ${T_DEPENDS})
  endif()
  set(platform offscreen)
  if(T_GUI AND VLT_XVFB_RUN)
    set(platform xcb)
    set(preload "")
    if(VLT_SANITIZE) # the graphics driver is unloaded before the leak check could name its functions
      vlt_need_loaded_libraries()
      set(preload env "LD_PRELOAD=${VLT_ASAN_RUNTIME}:$<TARGET_FILE:vlt_keep_loaded>")
    endif()
    add_test(NAME ${name} COMMAND ${VLT_XVFB_RUN} -a -s "-screen 0 1366x768x24 +extension GLX" ${preload}
                                  $<TARGET_FILE:${name}>)
  else()
    add_test(NAME ${name} COMMAND ${name})
  endif()
  set(environment
    QT_QPA_PLATFORM=${platform}
    LC_ALL=de_DE.UTF-8
    LOCPATH=${PROJECT_BINARY_DIR}/locale
    LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0
    XDG_CONFIG_HOME=${PROJECT_BINARY_DIR}/settings/${name}
    XDG_CONFIG_DIRS=${PROJECT_BINARY_DIR}/settings
    ${T_ENV})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${VLT_TEST_TIMEOUT_S} ENVIRONMENT "${environment}")
  if(T_HOSTILE)
    set_tests_properties(${name} PROPERTIES LABELS hostile)
    add_dependencies(hostile_tests ${name})
  endif()
endfunction()

function(vlt_collect_links target seen_var)
  set(seen ${${seen_var}})
  if(target IN_LIST seen OR NOT TARGET ${target})
    return()
  endif()
  list(APPEND seen ${target})
  foreach(property LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
    get_target_property(links ${target} ${property})
    foreach(link IN LISTS links)
      string(REGEX REPLACE "^\\$<LINK_ONLY:(.*)>$" "\\1" link "${link}")
      if(TARGET ${link})
        get_target_property(real ${link} ALIASED_TARGET)
        if(real)
          set(link ${real})
        endif()
        vlt_collect_links(${link} seen)
      endif()
    endforeach()
  endforeach()
  set(${seen_var} ${seen} PARENT_SCOPE)
endfunction()

function(vlt_check_architecture)
  get_property(widget_free GLOBAL PROPERTY VLT_WIDGET_FREE_TARGETS)
  get_property(qt_free GLOBAL PROPERTY VLT_QT_FREE_TARGETS)
  foreach(target IN LISTS widget_free)
    set(reached "")
    vlt_collect_links(${target} reached)
    if("Qt6::Widgets" IN_LIST reached)
      message(FATAL_ERROR "${target} holds logic and must not link Qt Widgets (reached through: ${reached})")
    endif()
  endforeach()
  foreach(target IN LISTS qt_free)
    set(reached "")
    vlt_collect_links(${target} reached)
    if("${reached}" MATCHES "Qt6::")
      message(FATAL_ERROR "${target} serves other programs' plug-in loaders and must not link Qt (reached: ${reached})")
    endif()
  endforeach()
endfunction()
