# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the build under PREFIX and checks what a desktop and the installed
# program look for. Run by ctest: cmake -DBUILD=... -DPREFIX=... -DAPP_ID=...
# -DPROGRAMS=games -DSHARE=share/games/tavi-sudoku -P this.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${result}")
endif()
set(expected
  ${PROGRAMS}/tavi-sudoku
  ${PROGRAMS}/tavi-sudoku-cli
  ${SHARE}/help/index.html
  ${SHARE}/applause.wav
  ${SHARE}/Sudoku_Easy.sds
  ${SHARE}/Sudoku_Outlaw.sds
  share/man/man6/tavi-sudoku.6.gz
  share/man/man6/tavi-sudoku-cli.6.gz
  share/doc/tavi-sudoku/changelog.gz
  share/doc/tavi-sudoku/copyright
  share/applications/${APP_ID}.desktop
  share/metainfo/${APP_ID}.metainfo.xml
  share/icons/hicolor/scalable/apps/${APP_ID}.svg)
foreach(size 16 24 32 48 64 128 256)
  list(APPEND expected share/icons/hicolor/${size}x${size}/apps/${APP_ID}.png)
endforeach()
foreach(f ${expected})
  if(NOT EXISTS ${PREFIX}/${f})
    message(FATAL_ERROR "missing after install: ${f}")
  endif()
endforeach()
# The installed companion rates a puzzle of the installed library.
execute_process(COMMAND ${PREFIX}/${PROGRAMS}/tavi-sudoku-cli rate
                INPUT_FILE ${PREFIX}/${SHARE}/sample-puzzles.txt
                RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_QUIET)
if(NOT result EQUAL 0 OR out STREQUAL "")
  message(FATAL_ERROR "installed tavi-sudoku-cli rate failed: ${result}")
endif()
file(REMOVE_RECURSE ${PREFIX})
