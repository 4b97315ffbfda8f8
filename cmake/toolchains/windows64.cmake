# 64-bit Windows from the package g++-mingw-w64-x86-64-posix, run by the package wine.
set(windows_target x86_64-w64-mingw32)
# Vectors of 32 bytes on the stack are moved as unaligned ones: GCC counts on a stack that is aligned so,
# which Windows does not promise.
set(windows_flags "-Wa,-muse-unaligned-vector-move")
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
