#include "tarvex/data_mgr.h"

#include "store/record/ent_list.h"

namespace Tarvex {

CDataMgr::CDataMgr(CZelData& model) : m_model(model) {}
CDataMgr::CDataMgr(CDataMgr const&) = default;
CDataMgr::CDataMgr(CDataMgr&&) noexcept = default;
CDataMgr::~CDataMgr() = default;

bool CDataMgr::IsIndirectList(Data::CEntList const& list) const {
  int count = 0;
  Util::CSet set;
  return !(list.CheckSimpleList(count, set) && count == list.NumWord());
}

}  // namespace Tarvex
