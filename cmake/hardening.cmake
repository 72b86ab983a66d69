# What compilers and linkers offer against a program that is led astray by damaged input: whatever
# of it is there, as the distributions use it too. `hardening` lists what tests/hardening finds in
# the built programs.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)

set(hardening "")

function(harden_compiler mark flag)
  string(MAKE_C_IDENTIFIER "have${flag}" known)
  check_cxx_compiler_flag(${flag} ${known})
  if(${known})
    add_compile_options(${flag})
    set(hardening ${hardening} ${mark} PARENT_SCOPE)
  endif()
endfunction()

function(harden_linker mark flag)
  string(MAKE_C_IDENTIFIER "have${flag}" known)
  check_linker_flag(CXX ${flag} ${known})
  if(${known})
    add_link_options(${flag})
    set(hardening ${hardening} ${mark} PARENT_SCOPE)
  endif()
endfunction()

# Not by CMake's own variable: that would make libraries fit for shared ones, which is slower. It
# goes before what a target adds itself, because Qt wants that.
check_cxx_compiler_flag(-fPIE have_fPIE)
if(have_fPIE AND NOT WIN32)
  string(APPEND CMAKE_CXX_FLAGS " -fPIE")
  harden_linker(pie -pie)
endif()
harden_linker(relro -Wl,-z,relro)
harden_linker(now -Wl,-z,now)
harden_compiler(canary -fstack-protector-strong)
if(NOT WIN32)  # mingw-w64's compiler gives up on some functions
  harden_compiler(clash -fstack-clash-protection)
endif()
harden_compiler(cet -fcf-protection)

if(WIN32)
  string(APPEND CMAKE_CXX_STANDARD_LIBRARIES " -lssp")  # what canaries and checks call
endif()

# The library's own checks work in optimised builds alone, and the sanitizers bring better ones.
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT DUSKMARCH_SANITIZE)
  foreach(level 3 2)
    set(CMAKE_REQUIRED_FLAGS "-O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${level} -Werror")
    check_cxx_source_compiles("
      #include <cstdio>
      int main(int count, char** words) {
        char text[8];
        return std::snprintf(text, sizeof text, \"%s\", words[count - 1]);
      }" fortify${level})
    unset(CMAKE_REQUIRED_FLAGS)
    if(fortify${level})
      add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${level})
      list(APPEND hardening fortify)
      break()
    endif()
  endforeach()
endif()
