#include "language/Keywords.h"

#include "strings/ResourceText.h"

namespace glidetrak {

static_assert(idWordPrint + iKeywordCount - 1 == idWordSoundSensor, "one word after the other");

void LoadKeywords() {
  for (int i = 0; i < iKeywordCount; ++i) {
    KeywordTable[static_cast<size_t>(i)] = LoadText(static_cast<TextId>(idWordPrint + i));
  }
}

}  // namespace glidetrak
