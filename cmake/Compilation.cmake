# How files are compiled: most of the time goes into reading Qt's and the standard library's
# headers, so either several files are read as one, or these headers are read once for all.
option(VANTREL_JOINED "Compile files in groups: the quickest way to build everything" OFF)
option(VANTREL_PRECOMPILED "Precompile the headers of others: the quickest after a change" OFF)

set(CMAKE_UNITY_BUILD ${VANTREL_JOINED})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)

# vantrel_compilation(TARGET HEADERS...): precompiles these, which the target's files mostly include.
function(vantrel_compilation target)
  if(VANTREL_PRECOMPILED)
    target_precompile_headers(${target} PRIVATE <algorithm> <array> <chrono> <functional> <map>
      <memory> <optional> <string> <string_view> <vector> ${ARGN})
  endif()
endfunction()

# vantrel_compiled_like(TARGET OTHER): with the headers precompiled for the other.
function(vantrel_compiled_like target other)
  if(VANTREL_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM ${other})
  endif()
endfunction()
