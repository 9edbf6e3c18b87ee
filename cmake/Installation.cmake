# `cmake --install` and CPack: a folder that runs where it is unpacked, or the system's own, from which each user gets his
# (app/DossierUtilisateur). AMBRELIS_SYSTEME says which; the packages are made of both, one build folder each.
option(AMBRELIS_SYSTEME "Install for everybody, under the prefix, with what a desktop knows a program by" OFF)

if(AMBRELIS_SYSTEME)
  include(GNUInstallDirs)
  set(place "${CMAKE_INSTALL_LIBDIR}/ambrelis")
else()
  set(place "Ambrelis")
endif()

install(TARGETS Ambrelis RUNTIME DESTINATION "${place}")
install(TARGETS Rapatrix RUNTIME DESTINATION "${place}/Le Rapatrix")
install(FILES "${AMBRELIS_DOSSIER}/Modele.dat" "${PROJECT_SOURCE_DIR}/src/app/Extensions.txt" DESTINATION "${place}")
install(FILES "${AMBRELIS_DOSSIER}/traductions/qtbase_fr.qm" DESTINATION "${place}/traductions")
install(FILES ${fiches} DESTINATION "${place}/samples")
install(FILES ${guide} DESTINATION "${place}/Guide")
install(FILES ${images_du_guide} DESTINATION "${place}/Guide/images")

set(CPACK_PACKAGE_NAME "ambrelis")
# The project has no public address. A package must name one; ".invalid" is the ending reserved for what is none.
set(CPACK_PACKAGE_CONTACT "The Ambrelis authors <no-address@ambrelis.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_FILE_NAME "ambrelis-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR}")

if(NOT AMBRELIS_SYSTEME)
  install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/packaging/LISEZ-MOI.txt" DESTINATION "${place}")
  set(CPACK_GENERATOR TGZ)
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
  include(CPack)
  return()
endif()

# Another content is another installation, whatever its version says.
install(CODE "
  set(place \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${place}\")
  file(SHA256 \"\${place}/Ambrelis\" programme)
  file(SHA256 \"\${place}/Modele.dat\" modele)
  file(WRITE \"\${place}/installation\" \"${PROJECT_VERSION} \${programme} \${modele}\\n\")")
install(CODE "
  set(programmes \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
  file(MAKE_DIRECTORY \"\${programmes}\")
  file(CREATE_LINK \"../${place}/Ambrelis\" \"\${programmes}/ambrelis\" SYMBOLIC)")

# The icon in the usual sizes is drawn from one SVG by Qt.
find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)
add_executable(fabrique_icones "${PROJECT_SOURCE_DIR}/packaging/icones.cpp")
target_link_libraries(fabrique_icones PRIVATE Qt6::Svg ambrelis_options)
set(icone "${PROJECT_SOURCE_DIR}/packaging/ambrelis.svg")
foreach(taille IN ITEMS 16 22 24 32 48 64 128 256 512)
  set(png "${CMAKE_BINARY_DIR}/icones/${taille}/ambrelis.png")
  add_custom_command(OUTPUT "${png}" COMMAND fabrique_icones "${icone}" "${png}" ${taille}
    DEPENDS fabrique_icones "${icone}" COMMENT "Drawing the icon of ${taille} pixels" VERBATIM)
  list(APPEND pngs "${png}")
  install(FILES "${png}" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${taille}x${taille}/apps")
endforeach()
add_custom_target(icones ALL DEPENDS ${pngs})
install(FILES "${icone}" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
install(FILES "${PROJECT_SOURCE_DIR}/packaging/ambrelis.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${PROJECT_SOURCE_DIR}/packaging/ambrelis.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${PROJECT_SOURCE_DIR}/packaging/ambrelis.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
install(FILES "${PROJECT_SOURCE_DIR}/packaging/copyright" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/ambrelis")

# Debian wants man page and changelog compressed without a date.
foreach(texte IN ITEMS ambrelis.1 changelog)
  set(serre "${CMAKE_BINARY_DIR}/${texte}.gz")
  add_custom_command(OUTPUT "${serre}"
    COMMAND sh -c "gzip -9 -n -c '${PROJECT_SOURCE_DIR}/packaging/${texte}' > '${serre}'"
    DEPENDS "${PROJECT_SOURCE_DIR}/packaging/${texte}" VERBATIM)
  list(APPEND serres "${serre}")
endforeach()
add_custom_target(textes_serres ALL DEPENDS ${serres})
install(FILES "${CMAKE_BINARY_DIR}/ambrelis.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${CMAKE_BINARY_DIR}/changelog.gz" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/ambrelis")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION "misc")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, shared-mime-info, qt6-qpa-plugins")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Ambrelis tient le catalogue de vos films : une fiche par film avec son
affiche et, à côté, ce que vous en possédez : support, étagère, fichiers,
prêts, réservations. Les titres se parcourent en arbre, selon neuf tris ; les
fiches s'importent par dossier, en fichiers .FILM, et les collections
d'autres programmes sont reprises. Le programme est en français.")
include(CPack)
