# Settings and helpers that every floor shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# One set of flags for every target. Contraction is off and SSE arithmetic is the rule, so that the same input gives the
# same digits on every machine and in every build type; -ffast-math must never appear here.
add_library(lithmark_flags INTERFACE)
target_compile_options(lithmark_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12's optimiser sees overlaps, overruns and uninitialised parts in plain std::string, std::variant and
  # std::function where there are none; the sanitizers of the debug build and clang's analyzer look after these.
  target_compile_options(lithmark_flags INTERFACE -Wno-restrict -Wno-array-bounds -Wno-maybe-uninitialized
    -Wno-stringop-overflow -Wno-stringop-overread)
endif()
# What is shipped is hardened: stack guards, checked copies, tables that cannot be written. That addresses move is the
# compilers' own default.
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
  target_compile_options(lithmark_flags INTERFACE -fstack-protector-strong)
  target_compile_definitions(lithmark_flags INTERFACE _FORTIFY_SOURCE=2)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|aarch64")
    target_compile_options(lithmark_flags INTERFACE -fstack-clash-protection)
  endif()
  target_link_options(lithmark_flags INTERFACE -Wl,-z,relro,-z,now)
endif()
if(CMAKE_SYSTEM_PROCESSOR MATCHES "i[3-6]86")
  target_compile_options(lithmark_flags INTERFACE -msse2 -mfpmath=sse)
endif()
target_include_directories(lithmark_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(lithmark_flags INTERFACE LITHMARK_VERSION="${PROJECT_VERSION}")
if(LITHMARK_SANITIZE)
  target_compile_definitions(lithmark_flags INTERFACE _GLIBCXX_ASSERTIONS LITHMARK_SANITIZE)
  target_compile_options(lithmark_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lithmark_flags INTERFACE -fsanitize=address,undefined)
endif()

# lithmark_compile_quickly(): the floors of this folder do little with numbers; under the sanitizers the optimiser would cost
# more time than their tests take without it.
function(lithmark_compile_quickly)
  if(LITHMARK_SANITIZE)
    add_compile_options(-O0)
  endif()
endfunction()

# What ccache asks for where headers are precompiled.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(LITHMARK_CACHED_HEADERS -fpch-preprocess)
else()
  set(LITHMARK_CACHED_HEADERS "SHELL:-Xclang -fno-pch-timestamp")
endif()
# lithmark_precompile(TARGET HEADERS...): compiles the headers once; targets of the same flags share them by REUSE_FROM.
function(lithmark_precompile target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  target_compile_options(${target} PRIVATE ${LITHMARK_CACHED_HEADERS})
endfunction()
function(lithmark_reuse target owner)
  target_precompile_headers(${target} REUSE_FROM ${owner})
  target_compile_options(${target} PRIVATE ${LITHMARK_CACHED_HEADERS})
endfunction()

if(LITHMARK_FUZZ)
  # The fuzzer watches where an input leads, the sanitizers what it does there. Clang warns of other things than GCC.
  target_compile_options(lithmark_flags INTERFACE -Wno-error
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lithmark_flags INTERFACE -fsanitize=address,undefined)
endif()

# lithmark_floor(NAME FOLDER LIBRARIES...): a static library of the .cpp files of a folder; it links what the folder
# includes and no more, so that the linker keeps the walls too. A file whose name begins with another system's is left out.
if(WIN32)
  set(LITHMARK_OTHER_SYSTEM Posix)
else()
  set(LITHMARK_OTHER_SYSTEM Windows)
endif()
function(lithmark_floor name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/${LITHMARK_OTHER_SYSTEM}[^/]*$")
  if(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC lithmark_flags ${ARGN})
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE lithmark_flags ${ARGN})
  endif()
endfunction()
