# The program folder: the executable and the files it looks for beside itself. Copied elsewhere, the folder runs there.

add_executable(fabrique_modele "${PROJECT_SOURCE_DIR}/src/db/modele/main.cpp")
target_link_libraries(fabrique_modele PRIVATE db ambrelis_options)
add_custom_command(OUTPUT "${AMBRELIS_DOSSIER}/Modele.dat"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${AMBRELIS_DOSSIER}"
  COMMAND fabrique_modele "${AMBRELIS_DOSSIER}/Modele.dat"
  DEPENDS fabrique_modele
  COMMENT "Making the empty base Modele.dat" VERBATIM)

# The program rewrites Extensions.txt with the user's choices: ours is copied where there is none or when ours changed.
set(extensions "${PROJECT_SOURCE_DIR}/src/app/Extensions.txt")
add_custom_command(OUTPUT "${AMBRELIS_DOSSIER}/Extensions.txt"
  COMMAND "${CMAKE_COMMAND}" "-DSOURCE=${extensions}" "-DDOSSIER=${AMBRELIS_DOSSIER}"
          -P "${PROJECT_SOURCE_DIR}/cmake/CopieExtensions.cmake"
  DEPENDS "${extensions}"
  COMMENT "Copying Extensions.txt" VERBATIM)

# Qt's own French, so that the standard boxes are French also where Qt's catalogues are not installed.
get_filename_component(prefixe_qt "${Qt6_DIR}/../../../.." ABSOLUTE)
find_file(CATALOGUE_QT_FRANCAIS qtbase_fr.qm NO_DEFAULT_PATH REQUIRED
  PATHS "${prefixe_qt}/${QT6_INSTALL_TRANSLATIONS}" "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}"
        /usr/share/qt6/translations)
add_custom_command(OUTPUT "${AMBRELIS_DOSSIER}/traductions/qtbase_fr.qm"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${AMBRELIS_DOSSIER}/traductions"
  COMMAND "${CMAKE_COMMAND}" -E copy "${CATALOGUE_QT_FRANCAIS}" "${AMBRELIS_DOSSIER}/traductions/qtbase_fr.qm"
  DEPENDS "${CATALOGUE_QT_FRANCAIS}"
  COMMENT "Copying Qt's French catalogue" VERBATIM)

# What only has to stand there: the user's guide, and sheets to begin with. A copy that is older than its source, or
# gone, is made again.
function(recopie dossier)
  set(copies)
  foreach(fichier IN LISTS ARGN)
    cmake_path(GET fichier FILENAME nom)
    list(APPEND copies "${AMBRELIS_DOSSIER}/${dossier}/${nom}")
  endforeach()
  add_custom_command(OUTPUT ${copies}
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${AMBRELIS_DOSSIER}/${dossier}"
    COMMAND "${CMAKE_COMMAND}" -E copy ${ARGN} "${AMBRELIS_DOSSIER}/${dossier}"
    DEPENDS ${ARGN}
    COMMENT "Copying ${dossier}" VERBATIM)
  set(recopies ${recopies} ${copies} PARENT_SCOPE)
endfunction()

file(GLOB fiches CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/samples/*.FILM" "${PROJECT_SOURCE_DIR}/samples/*.jpg")
recopie(samples ${fiches})
file(GLOB guide CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/guide/*.html" "${PROJECT_SOURCE_DIR}/docs/guide/*.css")
file(GLOB images_du_guide CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/guide/images/*.png")
recopie(Guide ${guide})
recopie(Guide/images ${images_du_guide})

add_custom_target(dossier_programme ALL
  DEPENDS "${AMBRELIS_DOSSIER}/Modele.dat" "${AMBRELIS_DOSSIER}/Extensions.txt"
          "${AMBRELIS_DOSSIER}/traductions/qtbase_fr.qm" ${recopies})
add_dependencies(dossier_programme Ambrelis Rapatrix)
