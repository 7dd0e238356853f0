// Blocks turned into members of their own.
#include <map>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/record/block.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/select/list_tokens.h"
#include "tarvex/coincidence.h"
#include "tarvex/disconnect.h"

namespace Tarvex {
namespace {

using Offsets = std::vector<Vec3<double>>;

/// Where each member of the blocks is to stand beside its own place. The blocks go.
std::map<int, Offsets> TakeBlocks(CZelData& model, Data::CEntList const& blocks) {
  std::map<int, Offsets> offsetsOf;
  auto const listed = Util::Item(blocks, model, model.HighestBlock());
  for (int const n : listed) {
    if (!model.BlockExist(n)) continue;
    auto const& block = model.Block(n);
    auto const places = block.Replica().ExpandedOffsets();
    for (int const member : block.Members()) {
      if (!model.MemberExist(member)) continue;  // now: a copy may get its number
      auto& offsets = offsetsOf[member];
      offsets.insert(offsets.end(), places.begin(), places.end());
    }
    model.BlankBlock(n, 1);
  }
  return offsetsOf;
}

/// Stores a copy of a node, moved. @return its number.
int CopyNode(CZelData& model, int node, Vec3<double> const& offset) {
  auto copy = model.Node(node);
  copy.SetPosition(copy.Position() + offset);
  int const number = model.HighestNode() + 1;
  model.SetNode(number, copy);
  return number;
}

void CopyMember(CZelData& model, Data::CMember const& source, Vec3<double> const& offset,
                Util::CSet& newNodes, Data::CEntList& members) {
  auto topology = source.Topo();
  for (int i = 0; i < topology.NumItem(); ++i) {
    int const node = topology.Items()[static_cast<std::size_t>(i)];
    if (!model.NodeExist(node)) continue;
    int const copy = CopyNode(model, node, offset);
    topology.SetItem(i, copy);
    newNodes.AddTo(copy);
  }
  auto member = source;
  member.SetTopo(topology);
  int const number = model.HighestMember() + 1;
  if (source.HasElements()) members.AddTo(number);
  model.SetMember(number, member);
}

/// Merges the new nodes that stand on others.
void MergeNodes(CZelData& model, Util::CSet const& newNodes) {
  double const tolerance = model.Spec().GenTol(TolType::Coincidence);
  if (!(tolerance > 0) || newNodes.IsEmpty()) return;
  CReduceCoinc reduce(model, tolerance, 0);
  auto const all = Util::MakeSet(Data::CEntList(SelNode, {Data::kAll}), model);
  std::vector<std::pair<int, int>> pairs;
  if (reduce.SetSearchSet(all, CReduceCoinc::kWholeSearch)) reduce.Do(newNodes, pairs);
}

}  // namespace

void ExplodeBlocks(CZelData& model, Data::CEntList const& blocks, Data::CEntList& members) {
  Util::CSet newNodes(SelNode);
  for (auto const& [number, offsets] : TakeBlocks(model, blocks)) {
    auto const source = model.Member(number);
    for (auto const& offset : offsets) CopyMember(model, source, offset, newNodes, members);
  }
  MergeNodes(model, newNodes);
}

}  // namespace Tarvex
