# vantrel_tests(ROOM): one test program for the room's rules (no Qt) and one for its forms.
# Files named frm*_test.cpp and everything in forms/ and platform/qt are the forms' tests.
if(WIN32) # Debian has it as source only
  add_subdirectory(/usr/src/googletest "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
else()
  find_package(GTest REQUIRED)
endif()
include(GoogleTest)

if(VANTREL_FORMS)
  find_package(Qt6 REQUIRED COMPONENTS Test)
endif()

function(vantrel_tests room)
  file(GLOB rule_tests CONFIGURE_DEPENDS "${room}/*_test.cpp"
    "${room}/${VANTREL_MACHINE}/*_test.cpp")
  file(GLOB form_tests CONFIGURE_DEPENDS "${room}/frm*_test.cpp" "${room}/qt/*_test.cpp")
  if(room STREQUAL "forms")
    set(form_tests ${rule_tests})
  endif()
  list(REMOVE_ITEM rule_tests ${form_tests})
  string(REPLACE "/" "_" name "${room}")

  if(rule_tests AND WIN32)
    # Linking takes ten seconds here: one program for all rooms, each a group of joined files.
    if(NOT TARGET test_rules)
      add_executable(test_rules)
      set_target_properties(test_rules PROPERTIES UNITY_BUILD_MODE GROUP)
      target_link_libraries(test_rules PRIVATE test_support GTest::gtest GTest::gtest_main)
      if(VANTREL_PRECOMPILED_TESTS)
        target_precompile_headers(test_rules REUSE_FROM test_support)
      endif()
      add_test(NAME faults COMMAND test_rules --gtest_brief=1 --gtest_filter=Operation.*)
      add_test(NAME rules COMMAND test_rules --gtest_brief=1 --gtest_filter=-Operation.*)
    endif()
    target_sources(test_rules PRIVATE ${rule_tests})
    set_source_files_properties(${rule_tests} PROPERTIES UNITY_GROUP ${name})
  elseif(rule_tests)
    add_executable(test_${name} ${rule_tests})
    target_link_libraries(test_${name} PRIVATE test_support GTest::gtest GTest::gtest_main)
    if(VANTREL_PRECOMPILED_TESTS)
      target_precompile_headers(test_${name} REUSE_FROM test_support)
    endif()
    gtest_discover_tests(test_${name} TEST_PREFIX "${room}/" DISCOVERY_TIMEOUT 60)
  endif()

  if(form_tests AND VANTREL_FORMS)
    add_executable(test_forms_${name} ${form_tests})
    target_link_libraries(test_forms_${name} PRIVATE forms_test_support)
    if(VANTREL_PRECOMPILED_TESTS)
      target_precompile_headers(test_forms_${name} REUSE_FROM forms_test_support)
    endif()
    # Pseudo-terminals are numbered anew at once: the lock file of one that a test has just let
    # go would stop another test that gets its number meanwhile.
    set(lock "")
    if(room STREQUAL "screens/main")
      set(lock PROPERTIES RESOURCE_LOCK serial-ports)
    elseif(room STREQUAL "platform") # its radios have to be heard within their time-outs
      set(lock PROPERTIES RUN_SERIAL ON)
    endif()
    gtest_discover_tests(test_forms_${name} TEST_PREFIX "${room}/forms/" DISCOVERY_TIMEOUT 60
      ${lock})
  endif()
endfunction()
