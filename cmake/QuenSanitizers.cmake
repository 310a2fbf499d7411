# AddressSanitizer with UndefinedBehaviorSanitizer when QUEN_SANITIZE is on.
function(quen_apply_sanitizers target)
  if(NOT QUEN_SANITIZE)
    return()
  endif()
  set(flags -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(${target} PRIVATE ${flags})
  target_link_options(${target} PRIVATE ${flags})
endfunction()
