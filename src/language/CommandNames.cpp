#include "language/CommandNames.h"

namespace glidetrak {

void BuildCommandNames() {
  for (size_t i = 0; i < CommandNameRows.size(); ++i) {
    const CommandNameRow& row = CommandNameRows[i];
    const QString sName = Word(row.keyword);
    CommandNameTable[i] = {row.bTakesArgument ? sName + u' ' : sName, row.bIsSensor};
  }
}

}  // namespace glidetrak
