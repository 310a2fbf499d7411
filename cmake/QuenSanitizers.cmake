# AddressSanitizer with UndefinedBehaviorSanitizer when QUEN_SANITIZE is on;
# ThreadSanitizer instead when QUEN_SANITIZE_THREAD is on.
#
# Every target built from the project's sources, or linking them, calls
# quen_apply_sanitizers: the library's objects, the shared library and each
# executable that loads it must agree on one sanitizer runtime.
include(CheckCXXSourceCompiles)

if(QUEN_SANITIZE AND QUEN_SANITIZE_THREAD)
  message(FATAL_ERROR "QUEN_SANITIZE and QUEN_SANITIZE_THREAD exclude each other")
endif()
if(QUEN_SANITIZE_THREAD)
  set(QUEN_SANITIZER_FLAGS -fsanitize=thread -fno-omit-frame-pointer)
else()
  set(QUEN_SANITIZER_FLAGS -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
endif()

# The shared library is linked with --no-undefined so that a missing definition
# shows at build time. clang links its sanitizer runtime statically into
# executables only and leaves a sanitized shared library's references to it
# for the loading executable to satisfy, so that check is dropped there.
set(QUEN_LINK_NO_UNDEFINED ON)

if(QUEN_SANITIZE OR QUEN_SANITIZE_THREAD)
  if(MSVC)
    message(FATAL_ERROR "QUEN_SANITIZE supports GCC and Clang only")
  endif()
  set(CMAKE_REQUIRED_FLAGS "${QUEN_SANITIZER_FLAGS}")
  string(REPLACE ";" " " CMAKE_REQUIRED_FLAGS "${CMAKE_REQUIRED_FLAGS}")
  set(CMAKE_REQUIRED_LINK_OPTIONS ${QUEN_SANITIZER_FLAGS})
  check_cxx_source_compiles("int main() { return 0; }" QUEN_SANITIZER_RUNTIME_WORKS)
  unset(CMAKE_REQUIRED_FLAGS)
  unset(CMAKE_REQUIRED_LINK_OPTIONS)
  if(NOT QUEN_SANITIZER_RUNTIME_WORKS)
    message(FATAL_ERROR "${CMAKE_CXX_COMPILER} cannot link with ${QUEN_SANITIZER_FLAGS}; "
                        "install the sanitizer runtime (libclang-rt-14-dev for clang 14, libasan/libubsan for GCC)")
  endif()
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    set(QUEN_LINK_NO_UNDEFINED OFF)
  endif()
endif()

function(quen_apply_sanitizers target)
  if(NOT QUEN_SANITIZE AND NOT QUEN_SANITIZE_THREAD)
    return()
  endif()
  target_compile_options(${target} PRIVATE ${QUEN_SANITIZER_FLAGS})
  target_link_options(${target} PRIVATE ${QUEN_SANITIZER_FLAGS})
endfunction()
