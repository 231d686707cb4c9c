#pragma once

#include <QtGlobal>
#include <string>

namespace glidetrak {

/// Plays the sequence in a process of its own and waits for it, 20 s at most. "" when it returned
/// true, else what happened.
std::string InProcessOfItsOwn(quint64 lSeed, bool (*play)(quint64));

}  // namespace glidetrak
