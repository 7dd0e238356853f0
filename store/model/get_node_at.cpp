#include "store/model/get_node_at.h"

#include "store/model/zel_data.h"
#include "store/record/node.h"

namespace Tarvex::ZelUtil {

int GetNodeAt(CZelData& model, Vec3<double> const& point, double tolerance, CString const& name) {
  if (int const found = model.NearestNode(point, tolerance); found != 0) return found;
  Data::CNode node(point, 0, Vbool6());
  node.SetName(name);
  node.SetSid(name);
  int const number = model.HighestNode() + 1;
  model.SetNode(number, node);
  return number;
}

}  // namespace Tarvex::ZelUtil
