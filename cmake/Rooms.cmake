# A room is a folder of src/: its sources are one library, corvane_<room>, and its tests one program.

# x_posix.cpp and x_windows.cpp are the two forms of what a system answers for x.h; x_posix_test.cpp tests the one.
if(WIN32)
  set(CORVANE_FOREIGN "_posix(_test)?\\.cpp$")
else()
  set(CORVANE_FOREIGN "_windows(_test)?\\.cpp$")
endif()

# corvane_room(codelist DEPENDS runtime host forms) makes corvane_codelist from src/codelist/*.cpp.
function(corvane_room room)
  cmake_parse_arguments(ARG "" "" "DEPENDS;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${room}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  list(FILTER sources EXCLUDE REGEX ${CORVANE_FOREIGN})
  list(TRANSFORM ARG_DEPENDS PREPEND corvane_)
  if(sources)
    add_library(corvane_${room} STATIC ${sources})
    target_include_directories(corvane_${room} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(corvane_${room} PUBLIC ${ARG_DEPENDS} ${ARG_LIBRARIES})
  else()
    add_library(corvane_${room} INTERFACE)
    target_include_directories(corvane_${room} INTERFACE ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(corvane_${room} INTERFACE ${ARG_DEPENDS} ${ARG_LIBRARIES})
  endif()
endfunction()

# corvane_room_tests(codelist) makes the program corvane_codelist_tests from tests/codelist/*.cpp.
function(corvane_room_tests room)
  cmake_parse_arguments(ARG "" "" "DEPENDS;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${room}/*.cpp)
  list(FILTER sources EXCLUDE REGEX ${CORVANE_FOREIGN})
  if(NOT sources)
    return()
  endif()
  list(TRANSFORM ARG_DEPENDS PREPEND corvane_)
  add_executable(corvane_${room}_tests ${sources})
  target_include_directories(corvane_${room}_tests PRIVATE ${CMAKE_SOURCE_DIR})
  # Under Wine the drive Z: is the root of this machine.
  target_compile_definitions(corvane_${room}_tests
                             PRIVATE CORVANE_SOURCE_DIR="$<$<BOOL:${WIN32}>:Z:>${CMAKE_SOURCE_DIR}")
  if(TARGET corvane_${room})
    list(APPEND ARG_DEPENDS corvane_${room})
  endif()
  target_link_libraries(corvane_${room}_tests PRIVATE ${ARG_DEPENDS} ${ARG_LIBRARIES} GTest::gtest GTest::gmock
                                                      GTest::gtest_main)
  if(WIN32)
    # Starting Wine is slow: the whole program is one test.
    add_test(NAME ${room} COMMAND ${CMAKE_SOURCE_DIR}/scripts/wine-run $<TARGET_FILE:corvane_${room}_tests>)
    return()
  endif()
  gtest_discover_tests(corvane_${room}_tests NO_PRETTY_VALUES DISCOVERY_TIMEOUT 120 PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
