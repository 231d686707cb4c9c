#include "language/Keywords.h"

#include "strings/ResourceText.h"

namespace glidetrak {

static_assert(iFirstKeywordId + iKeywordCount - 1 == 624, "the words are the ids 600 to 624");

void LoadKeywords() {
  for (int i = 0; i < iKeywordCount; ++i) {
    KeywordTable[static_cast<size_t>(i)] = LoadText(iFirstKeywordId + i);
  }
}

}  // namespace glidetrak
