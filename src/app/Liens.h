#pragma once

namespace app {

// What Image3 opens: the site of the sheets.
inline constexpr const char* kSiteMovieCovers = "https://www.moviecovers.com/";
// The program's own page, opened by Label4.
inline constexpr const char* kPageAmbrelis = "https://ambrelis.example/";

}  // namespace app
