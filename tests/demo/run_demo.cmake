# Runs quen-demo for one case and compares exit code, standard output and
# standard error with what the case expects, each as a whole.
# Inputs: DEMO (the executable), CASE, EXPECTED_DIR (holds the expected texts).
# The working directory holds sample.opts.
cmake_minimum_required(VERSION 3.25)

set(expected_code 0)
set(expected_stderr "")
if(CASE STREQUAL "PrintsValuesInCommandLineOrder")
  # Abbreviated names, a short third name, a synonym, --no- forms, a value
  # abbreviation, a list, a hexadecimal number, a value from the next
  # argument, an options file, plain files and the terminator.
  set(arguments
    --src=photos -t /mnt/backup --mode=mi --l-f=sync.log --no-p-t -v --no-comp
    --exclude=*.tmp,*.bak --skip=cache --b-s=0x20000 --retries 5 --bw-lim=12.5
    --options-file=sample.opts holiday.jpg notes.txt -- --dry-run extra)
  file(READ "${EXPECTED_DIR}/expected_run.txt" expected_stdout)
elseif(CASE STREQUAL "UnknownOptionFailsWithCodeTwo")
  set(arguments -v --frobnicate notes.txt)
  set(expected_code 2)
  set(expected_stdout "")
  set(expected_stderr "Unknown option: --frobnicate\n")
elseif(CASE STREQUAL "UnknownOptionIsFollowedBySuggestions")
  set(arguments --chksum notes.txt)
  set(expected_code 2)
  set(expected_stdout "")
  set(expected_stderr "Unknown option: --chksum\nDid you mean --checksum?\n")
elseif(CASE STREQUAL "EnvironmentGivesValuesTheCommandLineOverrides")
  set(ENV{QUEN_DEMO_RETRIES} 5)
  set(ENV{QUEN_DEMO_VERBOSE} 1)
  set(ENV{QUEN_DEMO_COMPRESS} 0)
  set(arguments --retries=1 notes.txt)
  file(READ "${EXPECTED_DIR}/expected_environment.txt" expected_stdout)
elseif(CASE STREQUAL "CompletionScriptForBash")
  set(arguments --compl=bash)
  set(expected_prefix "# Completion of 'quen-demo' options: names, --no- forms, allowed values, files,\n")
  set(expected_line "complete -F _quen_complete_quen_2ddemo -- 'quen-demo'\n")
elseif(CASE STREQUAL "AmbiguousValueFailsWithCodeTwo")
  set(arguments --mode=m notes.txt)
  set(expected_code 2)
  set(expected_stdout "")
  set(expected_stderr "Value validation problem in argument '--mode=m': Ambiguous value for option 'mode'. Possible values follows: 'mirror', 'update', 'merge'\n")
elseif(CASE STREQUAL "HelpListsVisibleGroups")
  set(arguments --help)
  file(READ "${EXPECTED_DIR}/expected_help.txt" expected_stdout)
else()
  message(FATAL_ERROR "unknown case '${CASE}'")
endif()

include("${CMAKE_CURRENT_LIST_DIR}/compare_run.cmake")
