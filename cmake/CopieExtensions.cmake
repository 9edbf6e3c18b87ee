# Puts SOURCE as Extensions.txt into DOSSIER. A different one that stands there may hold the user's choices: it is kept
# beside, as "Extensions.avant.txt".
file(MAKE_DIRECTORY "${DOSSIER}")
set(place "${DOSSIER}/Extensions.txt")
if(EXISTS "${place}")
  file(SHA256 "${place}" present)
  file(SHA256 "${SOURCE}" nouveau)
  if(NOT present STREQUAL nouveau)
    file(RENAME "${place}" "${DOSSIER}/Extensions.avant.txt")
  endif()
endif()
file(COPY_FILE "${SOURCE}" "${place}")
file(TOUCH_NOCREATE "${place}")
