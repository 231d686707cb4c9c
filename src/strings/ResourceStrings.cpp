#include "strings/ResourceStrings.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "strings/TextIds.h"

namespace glidetrak {

namespace {

struct TextRow {
  int iId;
  std::u16string_view sText;
};

#define TEXT_ROW(ID, TEXT) TextRow{ID, TEXT},
constexpr std::array EnglishRows{
#include "../data/strings/English.inc"
};
constexpr std::array SpanishRows{
#include "../data/strings/Spanish.inc"
};
#undef TEXT_ROW

#define TEXT_ID(ID, NAME) NAME,
constexpr std::array NamedIds{
#include "../data/strings/TextIds.inc"
};
#undef TEXT_ID

constexpr bool EveryRowHasAName() {
  return std::equal(EnglishRows.begin(), EnglishRows.end(), NamedIds.begin(), NamedIds.end(),
                    [](const TextRow& row, TextId id) { return row.iId == id; });
}

constexpr bool SameIds() {
  return std::equal(EnglishRows.begin(), EnglishRows.end(), SpanishRows.begin(), SpanishRows.end(),
                    [](const TextRow& a, const TextRow& b) { return a.iId == b.iId; });
}

constexpr bool InIdOrder() {
  return std::is_sorted(EnglishRows.begin(), EnglishRows.end(),
                        [](const TextRow& a, const TextRow& b) { return a.iId <= b.iId; });
}

static_assert(EnglishRows.size() == iStringCount);
static_assert(SameIds() && InIdOrder() && EveryRowHasAName());

template <class Rows>
QString FindRow(const Rows& rows, int iId) {
  const auto found =
      std::lower_bound(rows.begin(), rows.end(), iId,
                       [](const TextRow& row, int iWanted) { return row.iId < iWanted; });
  if (found == rows.end() || found->iId != iId) return {};
  return QString::fromUtf16(found->sText.data(), static_cast<qsizetype>(found->sText.size()));
}

}  // namespace

QString LoadTextFor(int iId, int iLanguage) {
  switch (iLanguage) {
    case iEnglish:
      return FindRow(EnglishRows, iId);
    case iSpanish:
      return FindRow(SpanishRows, iId);
    default:
      return {};
  }
}

QString LoadDefaultText(int iId) {
  const QString sText = FindRow(EnglishRows, iId);
  return sText.isEmpty() ? FindRow(SpanishRows, iId) : sText;
}

}  // namespace glidetrak
