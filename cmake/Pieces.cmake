# How a room of the house becomes a library.

add_library(ambrelis_options INTERFACE)
target_compile_options(ambrelis_options INTERFACE -pthread -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>) # g++ 12 raises it falsely on std::string's own concatenation when it optimises
if(AMBRELIS_WERROR)
  target_compile_options(ambrelis_options INTERFACE -Werror)
endif()
if(AMBRELIS_SANITIZE)
  # Under the sanitizers g++ 12 suspects the standard library's own <regex>.
  target_compile_options(ambrelis_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(ambrelis_options INTERFACE -fsanitize=address,undefined)
endif()
if(AMBRELIS_FUZZ)
  target_compile_options(ambrelis_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(ambrelis_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# What nearly every file includes is parsed once for all rooms but Qt's: they are compiled alike. The preset tidy has none
# of it: clang-tidy does not read what g++ parsed.
file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/entetes.cpp" CONTENT "")
add_library(ambrelis_entetes STATIC "${CMAKE_BINARY_DIR}/entetes.cpp")
target_link_libraries(ambrelis_entetes PRIVATE ambrelis_options)
target_precompile_headers(ambrelis_entetes PRIVATE <algorithm> <array> <chrono> <filesystem> <functional> <map> <memory>
  <optional> <sstream> <string> <string_view> <unordered_map> <utility> <vector>)

# ambrelis_piece(NAME LINKS [PRIVATE_LINKS ...] [PUBLIC_LINKS ...] [ENTETES ...])
# One static library from every .cpp of the current folder. PUBLIC_LINKS are the rooms whose headers this room's
# headers show; PRIVATE_LINKS are third-party libraries that no header of the room names; ENTETES are the room's own
# precompiled headers.
function(ambrelis_piece nom)
  cmake_parse_arguments(PIECE "" "" "PUBLIC_LINKS;PRIVATE_LINKS;ENTETES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  set(compiled ${sources})
  list(FILTER compiled INCLUDE REGEX "\\.cpp$")
  if(compiled)
    add_library(${nom} STATIC ${sources})
    target_include_directories(${nom} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${nom} PUBLIC ${PIECE_PUBLIC_LINKS} PRIVATE ambrelis_options ${PIECE_PRIVATE_LINKS})
    if(PIECE_ENTETES)
      target_precompile_headers(${nom} PRIVATE ${PIECE_ENTETES})
    else()
      target_precompile_headers(${nom} REUSE_FROM ambrelis_entetes)
    endif()
  else() # only headers so far
    add_library(${nom} INTERFACE)
    target_include_directories(${nom} INTERFACE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${nom} INTERFACE ${PIECE_PUBLIC_LINKS} ${PIECE_PRIVATE_LINKS})
  endif()
endfunction()
