#pragma once

// The rule of the shared variables: each is written by the files of its row in Writers.h alone. It
// reads text, not meaning, and knows assignments, ++ and --, calls that change a value in its
// place, addresses, references, and procedures that take an argument by reference.

#include <map>
#include <set>
#include <vector>

#include "architecture/SourceRules.h"

namespace glidetrak {

/// Names of procedures that take an argument by a reference that is not const, by the argument's
/// place, from 0.
using ReferenceTakers = std::map<int, std::set<QString>>;

/// Adds those that the text declares.
void CollectTakers(const QString& sText, ReferenceTakers& takers);

/// Writes to shared variables by files that are not among their writers.
QStringList WriterViolations(const std::vector<SourceFile>& aFiles, const ReferenceTakers& takers);

/// Shared variables that the file declares and the table lacks.
QStringList UnlistedVariables(const SourceFile& file);

/// Writers of the table that, in these files, write nothing.
QStringList IdleWriters(const std::vector<SourceFile>& aFiles, const ReferenceTakers& takers);

}  // namespace glidetrak
