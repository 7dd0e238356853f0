#include "store/select/case_tokens.h"

#include <array>

namespace Tarvex::Data {
namespace {

struct CaseRow {
  CaseOp kind;
  wchar_t letter;
};

constexpr std::array kRows{CaseRow{CaseOp::Load, L'L'}, CaseRow{CaseOp::Analysis, L'A'},
                           CaseRow{CaseOp::Combination, L'C'}, CaseRow{CaseOp::Task, L'T'}};

/// Numbers of the first kind begin above this, those of the second above its double and so on.
constexpr int kRoom = 1 << 28;
static_assert(kRoom > kHighestNumber);

}  // namespace

int CaseToken(SCaseRef const& ref) {
  if (!IsNumberToken(ref.num)) return 0;
  int room = 0;
  for (auto const& row : kRows) {
    room += kRoom;
    if (row.kind == ref.type) return room + ref.num;
  }
  return 0;
}

SCaseRef CaseOfToken(int token) {
  auto const row = static_cast<std::size_t>(token / kRoom) - 1;
  int const number = token % kRoom;
  if (token < kRoom || row >= kRows.size() || number > kHighestNumber) return {};
  return {kRows[row].kind, number};
}

CaseOp CaseOfLetter(wchar_t letter) {
  for (auto const& row : kRows)
    if (row.letter == letter) return row.kind;
  return CaseOp::None;
}

wchar_t LetterOfCase(CaseOp kind) {
  for (auto const& row : kRows)
    if (row.kind == kind) return row.letter;
  return 0;
}

}  // namespace Tarvex::Data
