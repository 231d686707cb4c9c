#pragma once

// The version data of the program.

namespace glidetrak {

constexpr int iVersionMajor = 3;
constexpr int iVersionMinor = 0;
constexpr int iVersionRevision = 0;

/// The title of the box that tells of a lost link.
constexpr const char* sFileDescription = "Glidetrak Control";

constexpr const char* sLegalNotice = "Copyright (C) Torvane";

}  // namespace glidetrak
