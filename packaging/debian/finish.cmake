# Makes of what was installed for the package what Debian asks for on top: compressed man pages, both change logs,
# the licence, what lintian need not say, and zsh's completion where Debian's zsh looks for it.
set(root "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr")
set(documents "${root}/share/doc/hullwright")
file(COPY "${CMAKE_CURRENT_LIST_DIR}/copyright" DESTINATION "${documents}")
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/changelog" "${documents}/changelog.Debian")
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/../../CHANGELOG.md" "${documents}/changelog")
file(MAKE_DIRECTORY "${root}/share/lintian/overrides")
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/lintian-overrides" "${root}/share/lintian/overrides/hullwright")
file(GLOB compressed "${root}/share/man/man1/*.1" "${documents}/changelog*")
execute_process(COMMAND gzip -9n ${compressed} COMMAND_ERROR_IS_FATAL ANY)
file(RENAME "${root}/share/zsh/site-functions" "${root}/share/zsh/vendor-completions")
