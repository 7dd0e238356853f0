#include "store/record/tasks.h"

#include "store/text/number_text.h"

namespace Tarvex {

int CZssTask::PDeltaCase() const {
  auto const& text = PDelta();
  int number = 0;
  if (text.GetLength() < 2 || !StringTo(text.Mid(1), number) || number < 1) return 0;
  if (text.Str()[0] == L'A') return number;
  return text.Str()[0] == L'C' ? -number : 0;
}

void CZdSpecTask::SetRelDisp(int index, CRelDisp const& displacement) {
  if (index == NumRelDisp()) m_relDisps.emplace_back();
  m_relDisps.at(static_cast<std::size_t>(index)) = displacement;
}

void CEnvelopeTask::SetDesc(CString const& text, CZelData const*) {
  m_desc = Data::CCombCaseDesc(text);
}

}  // namespace Tarvex
