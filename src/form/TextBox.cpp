#include "form/TextBox.h"

#include <algorithm>

namespace glidetrak {

void TextBox::SetText(const QString& sText) {
  if (sText == m_sText) return;
  m_sText = sText;
  m_aLineStarts.clear();
  PlaceSelection(0, 0);
  TextSet();
  Change();
}

const std::vector<int>& TextBox::LineStarts() const {
  if (!m_aLineStarts.empty()) return m_aLineStarts;
  m_aLineStarts.push_back(0);
  for (qsizetype i = m_sText.indexOf(u'\n'); i >= 0; i = m_sText.indexOf(u'\n', i + 1)) {
    if (i > 0 && m_sText[i - 1] == u'\r') m_aLineStarts.push_back(static_cast<int>(i) + 1);
  }
  return m_aLineStarts;
}

int TextBox::LineCount() const {
  return static_cast<int>(LineStarts().size());
}

void TextBox::Select(int iStart, int iLength) {
  PlaceSelection(iStart, iLength);
  SelectionSet(m_iSelStart, m_iSelLength);
}

void TextBox::ReplaceSelection(const QString& sText) {
  const int iStart = m_iSelStart;
  Splice(iStart, m_iSelLength, sText);
  TextReplaced(iStart, sText);
  Change();
}

void TextBox::UserEdit(int iStart, int iRemoved, const QString& sInserted) {
  Splice(iStart, iRemoved, sInserted);
  Change();
}

void TextBox::UserSelect(int iStart, int iLength) {
  PlaceSelection(iStart, iLength);
}

void TextBox::Splice(int iStart, int iRemoved, const QString& sInserted) {
  m_sText.replace(iStart, iRemoved, sInserted);
  m_aLineStarts.clear();
  PlaceSelection(iStart + static_cast<int>(sInserted.size()), 0);
}

void TextBox::PlaceSelection(int iStart, int iLength) {
  const int iEnd = static_cast<int>(m_sText.size());
  m_iSelStart = std::clamp(iStart, 0, iEnd);
  m_iSelLength = std::clamp(iLength, 0, iEnd - m_iSelStart);
}

}  // namespace glidetrak
