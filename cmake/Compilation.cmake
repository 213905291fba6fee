# How files are compiled: most of the time goes into reading Qt's and the standard library's
# headers, so either several files are read as one, or these headers are read once for all.
option(VANTREL_JOINED "Compile files in groups: the quickest way to build everything" OFF)
option(VANTREL_PRECOMPILED "Precompile the headers of others: the quickest after a change" OFF)

set(CMAKE_UNITY_BUILD ${VANTREL_JOINED})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)

# A test program is hardly more than one file: joining gains nothing there, precompiling does.
set(VANTREL_PRECOMPILED_TESTS OFF)
if(VANTREL_JOINED OR VANTREL_PRECOMPILED)
  set(VANTREL_PRECOMPILED_TESTS ON)
endif()

# vantrel_precompile(TARGET HEADERS...): these, which the target's files mostly include.
function(vantrel_precompile target)
  target_precompile_headers(${target} PRIVATE <algorithm> <array> <chrono> <functional> <map>
    <memory> <optional> <string> <string_view> <vector> ${ARGN})
endfunction()
