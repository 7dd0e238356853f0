#include "store/select/topo_set.h"

#include <stdexcept>
#include <string>

#include "store/select/numbers.h"

namespace Tarvex::Util {

void CTopoSet::AddTo(int item, int place) {
  if (item < 1 || item > kHighestNumber || place < -1)
    throw std::out_of_range("topology set: place " + std::to_string(place) + " of number " +
                            std::to_string(item));
  m_pairs.emplace(item, place);
}

}  // namespace Tarvex::Util
