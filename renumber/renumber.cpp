#include "tarvex/renumber.h"

#include <stdexcept>

#include "renumber/list_mapper.h"
#include "renumber/renumber_parts.h"

namespace Tarvex {

CRenumber::CRenumber(CZelData* model) : m_parts(std::make_unique<Parts>()) {
  m_parts->model = model;
}
CRenumber::CRenumber(CRenumber const& other) : m_parts(std::make_unique<Parts>(*other.m_parts)) {}
CRenumber& CRenumber::operator=(CRenumber const& other) {
  if (this != &other) *m_parts = *other.m_parts;
  return *this;
}
CRenumber::~CRenumber() = default;

void CRenumber::SetData(CZelData* model) {
  m_parts->model = model;
  m_parts->schemes.Clear();
}

void CRenumber::SetRefOnly(bool refOnly) { m_parts->refOnly = refOnly; }

CZelData& CRenumber::Model() const {
  if (m_parts->model == nullptr) throw std::logic_error("no model to renumber");
  return *m_parts->model;
}

CZelData const& CRenumber::Before() const {
  return m_parts->before != nullptr ? *m_parts->before : Model();
}

int CRenumber::MapItem(CModule::ModuleId module, int number) const {
  return m_parts->schemes.Map(module, number);
}

bool CRenumber::IsModule(CModule::ModuleId module) const { return m_parts->schemes.Has(module); }

int CRenumber::HighestItem(SelType kind) const { return Before().HighestEnt(kind); }

bool CRenumber::ItemExist(SelType kind, int number) const {
  return Before().EntExist({kind, number});
}

Data::CEntList CRenumber::MapList(Data::CEntList const& list, CModule::ModuleId module,
                                  CModule::ModuleId propertyModule) const {
  return ListMapper(m_parts->schemes, Before(), m_parts->refOnly).Map(list, module, propertyModule);
}

CString CRenumber::MapWord(Data::CEntList const& list, int token, CModule::ModuleId& module,
                           int& string, CModule::ModuleId propertyModule) const {
  ListMapper const mapper(m_parts->schemes, Before(), m_parts->refOnly);
  return mapper.MapWord(list, token, module, string, propertyModule);
}

CString CRenumber::Word(Data::CEntList const& list, int token, int& string) const {
  return ListWordText::AsItIs(list, token, string);
}

CString CRenumber::String(int number) const { return ListWordText::Number(number); }

Data::CEntList CRenumber::ListPreconversion(Data::CEntList list) const {
  return ListMapper(m_parts->schemes, Before(), m_parts->refOnly).Preconvert(std::move(list));
}

}  // namespace Tarvex
