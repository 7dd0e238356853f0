#include "tarvex/data_mgr.h"

namespace Tarvex {

CDataMgr::CDataMgr(CZelData& model) : m_model(model) {}
CDataMgr::CDataMgr(CDataMgr const&) = default;
CDataMgr::CDataMgr(CDataMgr&&) noexcept = default;
CDataMgr::~CDataMgr() = default;

}  // namespace Tarvex
