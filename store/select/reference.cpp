#include "store/select/reference.h"

#include <array>

namespace Tarvex {
namespace {

struct KindRow {
  wchar_t const* label;
  CModule::ModuleId module;
};

constexpr std::array<KindRow, 6> kKinds{{{L"", CModule::None},
                                         {L"node", CModule::Node},
                                         {L"element", CModule::Elem},
                                         {L"member", CModule::Member},
                                         {L"case", CModule::None},
                                         {L"", CModule::None}}};

KindRow const& Row(SelType kind) {
  auto const k = static_cast<std::size_t>(kind);
  return k < kKinds.size() ? kKinds[k] : kKinds[SelNone];
}

}  // namespace

CString SelTypeLabel(SelType kind) { return Row(kind).label; }

CModule::ModuleId EntModId(SelType kind) { return Row(kind).module; }

}  // namespace Tarvex
