#include "tarvex/data_mgr.h"

#include "topology/load_table.h"

namespace Tarvex {

CDataMgr::CDataMgr(CZelData& model) : m_model(model) {}
CDataMgr::CDataMgr(CDataMgr const&) = default;
CDataMgr::CDataMgr(CDataMgr&&) noexcept = default;
CDataMgr::~CDataMgr() = default;

bool CDataMgr::IsIndirectList(Data::CEntList const& list) const { return !IsPlainList(list); }

}  // namespace Tarvex
