#include "renumber/list_word_text.h"

#include <algorithm>
#include <array>

#include "store/select/list_tokens.h"

namespace Tarvex {
namespace {

constexpr int kOwn = ListWordRow::kOwn;

constexpr std::array kListWordRows{
    ListWordRow{-58, L"MF", CModule::MatFabric, true},
    ListWordRow{-57, L"MT", CModule::MatTimber, true},
    ListWordRow{-55, L"MP", CModule::MatFrp},
    ListWordRow{-54, L"MG", CModule::MatGlass, true},
    ListWordRow{-53, L"MA", CModule::MatAluminium, true},
    ListWordRow{-52, L"MC", CModule::MatConcrete},
    ListWordRow{-51, L"MS", CModule::MatSteel},
    ListWordRow{-50, L"M", CModule::MatAnal, true},
    ListWordRow{-39, L"YZ", CModule::Node},
    ListWordRow{-38, L"ZX", CModule::Node},
    ListWordRow{-37, L"Z", CModule::Node},
    ListWordRow{-36, L"XY", CModule::Node},
    ListWordRow{-35, L"Y", CModule::Node},
    ListWordRow{-34, L"X", CModule::Node},
    ListWordRow{-32, L"PD", CModule::DamperProp},
    ListWordRow{-31, L"DCS", CModule::None},
    ListWordRow{-30, L"DCB", CModule::None},
    ListWordRow{-29, L"DSR", CModule::None},
    ListWordRow{-28, L"DS", CModule::None},
    ListWordRow{-27, L"DMR", CModule::MatRebar},
    ListWordRow{-24, L"G", CModule::None},
    ListWordRow{-23, L"PV", CModule::Prop3D},
    ListWordRow{-22, L"PG", CModule::SpacerProp},
    ListWordRow{-21, L"PC", CModule::CableProp},
    ListWordRow{-20, L"PL", CModule::LinkProp},
    ListWordRow{-19, L"PA", CModule::Prop2D},
    ListWordRow{-18, L"PM", CModule::MassProp},
    ListWordRow{-17, L"PS", CModule::SpringProp},
    ListWordRow{-16, L"PB", CModule::Section},
    ListWordRow{-15, L"P", ListWordRow::kProperty},
    ListWordRow{-14, L"E", kOwn},
    ListWordRow{-13, L"N", kOwn},
    ListWordRow{-12, L"#", CModule::None},
    ListWordRow{-10, L")", kOwn},
    ListWordRow{-9, L"(", kOwn},
    ListWordRow{-8, L"or ", kOwn},
    ListWordRow{-7, L"and ", kOwn},
    ListWordRow{-6, L"* ", kOwn},
    ListWordRow{-5, L"none ", kOwn},
    ListWordRow{-4, L"all ", kOwn},
    ListWordRow{-3, L"step ", CModule::None},
    ListWordRow{-2, L"not ", kOwn},
    ListWordRow{-1, L"to ", kOwn},
};

}  // namespace

ListWordRow const* FindListWord(int token) {
  auto const* const at =
      std::lower_bound(kListWordRows.begin(), kListWordRows.end(), token,
                       [](ListWordRow const& row, int sought) { return row.token < sought; });
  return at != kListWordRows.end() && at->token == token ? at : nullptr;
}

namespace ListWordText {

void AppendNumber(std::wstring& text, int number) {
  text += std::to_wstring(number);
  text += L' ';
}

void AppendName(std::wstring& text, Data::CEntList const& list, int& string) {
  text += L'"';
  text += list.StringRef(string++).Str();
  text += L"\" ";
}

void Append(std::wstring& text, Data::CEntList const& list, int token, int& string) {
  if (token == Data::kString) return AppendName(text, list, string);
  auto const* const row = FindListWord(token);
  if (row == nullptr || row->asNumber)
    AppendNumber(text, token);
  else
    text += row->text;
}

CString Number(int number) {
  std::wstring text;
  AppendNumber(text, number);
  return text;
}

CString AsItIs(Data::CEntList const& list, int token, int& string) {
  std::wstring text;
  Append(text, list, token, string);
  return text;
}

}  // namespace ListWordText
}  // namespace Tarvex
