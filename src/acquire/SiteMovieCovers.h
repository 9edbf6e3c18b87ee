#pragma once

namespace acquire {

// The site of the sheets, searched by the downloader and opened by the logo.
inline constexpr const char* kSiteMovieCovers = "http://www.moviecovers.com";

}  // namespace acquire
