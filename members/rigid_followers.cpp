#include "members/rigid_followers.h"

#include <algorithm>

#include "store/model/list_expansion.h"
#include "store/record/rigid.h"

namespace Tarvex {

RigidFollowers::RigidFollowers(CZelData& model) : m_model(model) {
  for (int n = 1; n <= model.HighestRigid(); ++n) {
    auto const& rigid = model.Rigid(n);
    auto const enter = [&](int node) {
      auto& rigids = m_rigidsOf[node];
      if (rigids.empty() || rigids.back() != n) rigids.push_back(n);
    };
    enter(rigid.PrimaryNode());
    for (int const node : Util::MakeSet(rigid.ConstrainedNodes(), model)) enter(node);
  }
}

void RigidFollowers::Join(int a, int b, int middle) {
  if (m_rigidsOf.empty()) return;
  auto const ofA = m_rigidsOf.find(a);
  auto const ofB = m_rigidsOf.find(b);
  if (ofA == m_rigidsOf.end() || ofB == m_rigidsOf.end()) return;
  for (int const n : ofA->second) {
    if (!std::binary_search(ofB->second.begin(), ofB->second.end(), n)) continue;
    // A list of words may hold nodes that came before this one: it is read when it first gains one.
    auto gained = m_gained.find(n);
    if (gained == m_gained.end())
      gained =
          m_gained.emplace(n, Util::MakeSet(m_model.Rigid(n).ConstrainedNodes(), m_model)).first;
    gained->second.AddTo(middle);
  }
}

void RigidFollowers::Store() {
  for (auto const& [n, nodes] : m_gained) {
    Data::CEntList list(SelNode, CString(L""));
    list.AssignFromSet(nodes);
    m_model.SetRigidConstrainedNodes(n, list);
  }
}

}  // namespace Tarvex
