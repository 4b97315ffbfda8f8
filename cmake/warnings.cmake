# One warning set for every target: brisal_warnings(target).
function(brisal_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wno-psabi)
  if(BRISAL_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
