#include "language/RunState.h"

#include "language/CompilePass.h"

namespace glidetrak {

void SkipIfBody() {
  bInIfBlock = false;
  lCurrentLine = LineTable.at(static_cast<size_t>(lCurrentLine)).lTargetLine;
}

}  // namespace glidetrak
