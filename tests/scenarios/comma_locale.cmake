# A locale whose decimal sign is the comma, for a second run of all scenarios: the machine's own, or one that is made in
# the build folder. Leaves its environment in `comma_environment`, which stays empty where there is no such locale.
set(comma_environment "")
find_program(LOCALE_TOOL locale)
find_program(LOCALEDEF_TOOL localedef)
mark_as_advanced(LOCALE_TOOL LOCALEDEF_TOOL)

function(try_comma_locale environment)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env ${environment} ${LOCALE_TOOL} decimal_point
    OUTPUT_VARIABLE sign OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(sign STREQUAL ",")
    set(comma_environment "${environment}" PARENT_SCOPE)
  endif()
endfunction()

if(LOCALE_TOOL)
  try_comma_locale(LC_ALL=de_DE.UTF-8)
  if(NOT comma_environment AND LOCALEDEF_TOOL)
    set(locales ${CMAKE_CURRENT_BINARY_DIR}/locales)
    file(MAKE_DIRECTORY ${locales})
    execute_process(COMMAND ${LOCALEDEF_TOOL} -i de_DE -f UTF-8 ${locales}/de_DE.UTF-8 OUTPUT_QUIET ERROR_QUIET)
    try_comma_locale("LOCPATH=${locales};LC_ALL=de_DE.UTF-8")
  endif()
endif()
if(NOT comma_environment)
  message(STATUS "Scenarios run with a decimal point only: no locale with a comma")
endif()
