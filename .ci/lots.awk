# Joins the sources of each room into lots, for a tool that would otherwise read the same headers again for each of them.
# Reads the compile_commands.json of the checkout RACINE; writes the lots and theirs into the folder SORTIE. Two files of a
# lot declare no name twice at the left margin, where private names stand here. What that overlooks does not compile: who
# uses the lots takes the files of such a one by themselves. Clang's analyzer looks into the files that a lot includes only
# where its name begins with "UnifiedSource".

# Adds the names that a line of a source declares there.
function noteLesNoms(ligne, noms,    nom) {
  if (ligne !~ /^[A-Za-z]/ || ligne ~ /^(namespace|using|template|static_assert)/) return
  while (ligne ~ /^const/ && match(ligne, /[A-Za-z0-9_]+ *[={]/)) {
    nom = substr(ligne, RSTART, RLENGTH - 1)
    ligne = "const" substr(ligne, RSTART + RLENGTH)
    sub(/ +$/, "", nom)
    noms[nom]
  }
  sub(/([({=;[]| : | final).*/, "", ligne)
  sub(/ +$/, "", ligne)
  sub(/.*[ *&]/, "", ligne)
  if (ligne !~ /::/) noms[ligne]
}

# Whether the source has room in that lot, which then has its names.
function entre(source, lot,    ligne, nom, noms) {
  if (nombre[lot] >= 16) return 0
  while ((getline ligne < source) > 0) noteLesNoms(ligne, noms)
  close(source)
  for (nom in noms) if ((lot, nom) in pris) return 0
  for (nom in noms) pris[lot, nom]
  return 1
}

/^ *"command":/ { commande = $0 }
/^ *"file":/ {
  source = $0
  sub(/^ *"file": "/, "", source)
  sub(/".*/, "", source)
  if (index(source, RACINE "/src/") != 1) next
  piece = source
  sub(/.*\/src\//, "", piece)
  sub(/\/[^\/]*$/, "", piece)
  gsub(/\//, "_", piece)
  if (source ~ /\/main\.cpp$/) piece = piece "_main"
  for (n = 1; !entre(source, piece n); ++n) {}
  lot = piece n
  fichier = SORTIE "/UnifiedSource-" lot ".cpp"
  if (!nombre[lot]++) {
    gsub(/^ *"command": "| -c .*/, "", commande)
    printf "%s{\"directory\": \"%s\", \"command\": \"%s -c \\\"%s\\\"\", \"file\": \"%s\"}",
      (lots++ ? ",\n" : "[\n"), SORTIE, commande, fichier, fichier > (SORTIE "/compile_commands.json")
  }
  print "#include \"" source "\"" > fichier
}
END { print "\n]" > (SORTIE "/compile_commands.json") }
