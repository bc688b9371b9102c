# Installs the build under PREFIX and checks what a desktop and the installed
# program look for. Run by ctest: cmake -DBUILD=... -DPREFIX=... -DAPP_ID=... -P this.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install failed: ${result}")
endif()
set(expected
  bin/tavi-sudoku
  bin/tavi-sudoku-cli
  share/tavi-sudoku/help/index.html
  share/tavi-sudoku/applause.wav
  share/tavi-sudoku/Sudoku_Easy.sds
  share/tavi-sudoku/Sudoku_Outlaw.sds
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
execute_process(COMMAND ${PREFIX}/bin/tavi-sudoku-cli rate
                INPUT_FILE ${PREFIX}/share/tavi-sudoku/sample-puzzles.txt
                RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_QUIET)
if(NOT result EQUAL 0 OR out STREQUAL "")
  message(FATAL_ERROR "installed tavi-sudoku-cli rate failed: ${result}")
endif()
file(REMOVE_RECURSE ${PREFIX})
