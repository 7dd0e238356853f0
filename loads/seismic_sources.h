// Combinations of seismic actions by source.
#pragma once

#include <map>
#include <tuple>

#include "store/record/load_case_title.h"

namespace Tarvex {

/// The combination of each seismic action, by type, direction and source; of several the lowest.
class SeismicActions {
 public:
  explicit SeismicActions(std::map<int, Data::CLoadCaseTitle> const& titles);

  /// 0 where there is none.
  int Find(CaseType type, int direction, int source) const;

 private:
  std::map<std::tuple<CaseType, int, int>, int> m_numbers;
};

}  // namespace Tarvex
