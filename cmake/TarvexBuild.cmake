# What every target of the project is compiled with.
include(GenerateExportHeader)
include(CheckLinkerFlag)

# Interface target that carries warnings, hidden visibility and sanitizers. Geometry must give the
# same bits on every machine, so contraction of a * b + c into one rounding is off.
add_library(tarvex_options INTERFACE)
target_compile_features(tarvex_options INTERFACE cxx_std_20)
target_compile_options(tarvex_options INTERFACE
  -ffp-contract=off -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wold-style-cast
  # With optimisation GCC 12 warns without cause about inlined strings and small vectors.
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-stringop-overflow;-Wno-stringop-overread;-Wno-array-bounds;-Wno-restrict>
  $<$<BOOL:${TARVEX_WERROR}>:-Werror>
  # The standard library's stable_sort calls a function of its own that it has deprecated; older Boost
  # casts numbers beyond the values of enumerations in constant expressions.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-deprecated-declarations;-Wno-enum-constexpr-conversion>)
target_compile_definitions(tarvex_options INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
if(TARVEX_SANITIZE)
  target_compile_options(tarvex_options INTERFACE -fsanitize=${TARVEX_SANITIZE}
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarvex_options INTERFACE -fsanitize=${TARVEX_SANITIZE})
endif()

# ccache and mold are taken when they are there; neither changes a result.
find_program(TARVEX_CCACHE ccache)
if(TARVEX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${TARVEX_CCACHE}")
  # Without it ccache passes over what is compiled with a precompiled header of GCC.
  target_compile_options(tarvex_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()
find_program(TARVEX_MOLD mold)
if(TARVEX_MOLD)
  target_link_options(tarvex_options INTERFACE -fuse-ld=mold)
endif()

# The reference BLAS, in whose place the system may put any other; the dense solver alone calls it.
if(NOT BLA_VENDOR)
  set(BLA_VENDOR Generic)
endif()
find_package(BLAS REQUIRED)

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_EXTENSIONS OFF)

# tarvex_add_library(NAME BASE source...): a shared library with hidden symbols. Its export macro
# stands in the generated header BASE/export.h.
function(tarvex_add_library name base)
  add_library(${name} SHARED ${ARGN})
  string(TOUPPER ${name} upper)
  set(generated "${PROJECT_BINARY_DIR}/generated")
  generate_export_header(${name} EXPORT_MACRO_NAME ${upper}_EXPORT
                         EXPORT_FILE_NAME "${generated}/${base}/export.h")
  set_target_properties(${name} PROPERTIES
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:tarvex_options>)
  # Clang's sanitizers leave their own symbols to the program.
  if(NOT (TARVEX_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
  endif()
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<BUILD_INTERFACE:${generated}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/tarvex>)
endfunction()
