# CITATION.cff alone holds the version and its date.
foreach(key IN ITEMS version date-released)
  file(STRINGS CITATION.cff line REGEX "^${key}: ")
  string(REGEX REPLACE ".*: *" "" citation_${key} "${line}")
endforeach()
set(SORVIK_VERSION ${citation_version})
set(SORVIK_RELEASE_DATE ${citation_date-released})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CITATION.cff)
