# Run as a script: writes PAGE, the manual page of PROGRAM in VERSION and DATE, from MANUAL with PANDOC.
string(TOUPPER ${PROGRAM} title)
execute_process(
  COMMAND ${PANDOC} --from markdown_strict+pipe_tables+backtick_code_blocks+all_symbols_escapable --to man
    --shift-heading-level-by=-1 --template ${CMAKE_CURRENT_LIST_DIR}/manPage.template
    --lua-filter ${CMAKE_CURRENT_LIST_DIR}/manPage.lua
    --variable title=${title} --variable program=${PROGRAM}
    --variable version=${VERSION} --variable date=${DATE} ${CMAKE_CURRENT_LIST_DIR}/${MANUAL}
  OUTPUT_VARIABLE page COMMAND_ERROR_IS_FATAL ANY)
# Long tables may break across pages; unbroken ones would leave gaps.
string(REPLACE "\ntab(@);" "\nnokeep tab(@);" page "${page}")
file(WRITE ${PAGE} "${page}")
