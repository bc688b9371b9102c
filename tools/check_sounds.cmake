# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the sound tool into a scratch folder and compares every file, byte for byte,
# with the committed sounds.
file(REMOVE_RECURSE ${OUT})
file(MAKE_DIRECTORY ${OUT})
execute_process(COMMAND ${TOOL} ${OUT} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the sound tool failed: ${status}")
endif()
file(GLOB made RELATIVE ${OUT} ${OUT}/*.wav)
list(LENGTH made count)
if(NOT count EQUAL 10)
  message(FATAL_ERROR "expected 10 sounds, the tool made ${count}")
endif()
foreach(name ${made})
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUT}/${name} ${EXPECTED}/${name}
                  RESULT_VARIABLE differs)
  if(differs)
    message(FATAL_ERROR "${name} differs from the committed file")
  endif()
endforeach()
message(STATUS "10 passed, 0 failed")
