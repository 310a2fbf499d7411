# Runs quen-app-demo for one case and compares exit code, standard output and
# standard error with what the case expects, each as a whole.
# Inputs: DEMO (the executable), CASE, EXPECTED_DIR (holds the expected texts).
# The working directory holds sample.opts.
cmake_minimum_required(VERSION 3.25)

# Only what a case sets may come from the environment.
foreach(variable IN ITEMS SHELF_HOME QUEN_APP_DEMO_VERBOSE QUEN_APP_DEMO_COLOUR QUEN_APP_DEMO_JOBS
    QUEN_APP_DEMO_SHELF QUEN_APP_DEMO_DEBUG)
  unset(ENV{${variable}})
endforeach()

set(expected_code 0)
set(expected_stdout "")
set(expected_stderr "")
if(CASE STREQUAL "ImportPrintsValuesInCommandLineOrder")
  # Values from the environment, from an options file and from the command
  # line; a --no- flag, an abbreviated command, a list split at commas, a
  # value abbreviation, an optional number, two dates that need each other
  # and positionals with a list taking the rest.
  set(ENV{QUEN_APP_DEMO_JOBS} 6)
  set(arguments
    --config=sample.opts -v --no-col imp --album=Holidays -t sea,sun --tag=2026 --qual=b
    --max-size=12.5 --since=2026-07-01 --until=2026-07-31 --move /media/card a.jpg b.jpg)
  file(READ "${EXPECTED_DIR}/expected_app_import.txt" expected_stdout)
elseif(CASE STREQUAL "NestedCommandsByAbbreviation")
  # The shelf from the variable that its option names.
  set(ENV{SHELF_HOME} /home/ann/Shelf)
  set(arguments rem a nas https://nas.local/photos Holidays Family --port=8443 --chunk-size=65536)
  file(READ "${EXPECTED_DIR}/expected_app_remote_add.txt" expected_stdout)
elseif(CASE STREQUAL "ArgumentsAfterTerminatorAreKeptAside")
  set(arguments remote rem --force nas -- extra -x)
  file(READ "${EXPECTED_DIR}/expected_app_remote_remove.txt" expected_stdout)
elseif(CASE STREQUAL "FilesAfterTerminatorFollowInCommandLineOrder")
  # After "--" a name that begins with '-' is a file too, numbered after the one before it.
  set(arguments import --album=Holidays /media/card a.jpg b.jpg -- -odd.jpg)
  file(READ "${EXPECTED_DIR}/expected_app_import_terminator.txt" expected_stdout)
elseif(CASE STREQUAL "HelpListsOptionsAndCommands")
  set(arguments --help)
  file(READ "${EXPECTED_DIR}/expected_app_help.txt" expected_stdout)
elseif(CASE STREQUAL "CommandHelpListsItsOptionsAndArguments")
  set(arguments import --help)
  file(READ "${EXPECTED_DIR}/expected_app_import_help.txt" expected_stdout)
elseif(CASE STREQUAL "MistypedOptionFailsWithSuggestion")
  set(arguments import --albun=Holidays /media/card)
  set(expected_code 2)
  string(CONCAT expected_stderr
    "quen-app-demo import: error: Unknown option: --albun=Holidays\n"
    "Did you mean '--album'?\n"
    "Usage: quen-app-demo import [options] <source> [<files>...]\n"
    "Try 'quen-app-demo import --help' for more information.\n")
elseif(CASE STREQUAL "CheckRefusesValueWithItsOwnText")
  set(arguments import --album=Holidays --rename=a/b /media/card)
  set(expected_code 2)
  string(CONCAT expected_stderr
    "quen-app-demo import: error: Option 'rename' does not take 'a/b': a rename pattern cannot contain '/'\n"
    "Usage: quen-app-demo import [options] <source> [<files>...]\n"
    "Try 'quen-app-demo import --help' for more information.\n")
elseif(CASE STREQUAL "VersionPrintsProgramAndVersion")
  set(arguments --version)
  set(expected_stdout "quen-app-demo 2.3.0\n")
elseif(CASE STREQUAL "CompletionScriptForBash")
  set(arguments --completion=bash)
  set(expected_line "complete -F _quen_app_quen_app_demo 'quen-app-demo'\n")
else()
  message(FATAL_ERROR "unknown case '${CASE}'")
endif()

include("${CMAKE_CURRENT_LIST_DIR}/compare_run.cmake")
