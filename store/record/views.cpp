#include "store/record/views.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {
namespace {

template <class Item>
void ReplaceOrAppend(std::vector<Item>& items, int index, Item const& item) {
  if (index == static_cast<int>(items.size())) items.emplace_back();
  CheckedAt(items, index) = item;
}

}  // namespace

CGrData const& CGrView::GrData(int index) const { return CheckedAt(m_data, index); }
void CGrView::SetGrData(int index, CGrData const& data) { ReplaceOrAppend(m_data, index, data); }

COpData const& COpView::OpData(int index) const { return CheckedAt(m_data, index); }
void COpView::SetOpData(int index, COpData const& data) { ReplaceOrAppend(m_data, index, data); }

}  // namespace Tarvex::Data
