# 32-bit x86 from a 64-bit GCC, which needs the package g++-12-multilib. The package g++-multilib would
# do too, but no other cross compiler can be installed beside it.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER gcc)
set(CMAKE_CXX_COMPILER g++)
# Floats are of the precision that the source says only in SSE registers.
set(flags "-m32 -msse2 -mfpmath=sse")
# The headers of the kernel, which g++-multilib would link to a place that is always searched.
if(EXISTS /usr/include/x86_64-linux-gnu/asm)
  string(APPEND flags " -isystem /usr/include/x86_64-linux-gnu")
endif()
set(CMAKE_C_FLAGS_INIT "${flags}")
set(CMAKE_CXX_FLAGS_INIT "${flags}")
# Kernels without 32-bit programs, as some virtual machines have, leave them to the package qemu-user.
execute_process(COMMAND /lib/ld-linux.so.2 --version
  RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
if(failed)
  set(CMAKE_CROSSCOMPILING_EMULATOR qemu-i386)
endif()
