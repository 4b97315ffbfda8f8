# 32-bit Windows from the package g++-mingw-w64-i686-posix, run by the package wine32.
set(windows_target i686-w64-mingw32)
# Floats are of the precision that the source says only in SSE registers, and callers of Windows align
# the stack to 4 bytes.
set(windows_flags "-msse2 -mfpmath=sse -mincoming-stack-boundary=2")
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
