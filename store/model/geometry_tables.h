// Tables of axes, saved lists and other geometry. The operations are those of
// store/model/entity_tables.h.
#pragma once

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/table/paged_table.h"

namespace Tarvex {

class ModelCore;
namespace Data {
class CAxis;
class CEntList;
}  // namespace Data

/// Axes and saved lists of a model.
class TARVEX_STORE_EXPORT GeometryTables {
 public:
  // User axes (20). Axis(0) is the global axis; AxisExist(0) is false.
  bool AxisExist(int n) const;
  Data::CAxis const& Axis(int n) const;
  tarvex_unordered_map<unsigned int, Data::CAxis> const& Axis() const;
  int HighestAxis() const;
  void SetAxis(int n, Data::CAxis const& axis, SidMode sid = SidMode::Keep);
  void BlankAxis(int first, int count);

  // Saved lists (no module number): what "#" and quoted names in lists refer to.
  bool ListExist(int n) const;
  Data::CEntList const& List(int n) const;
  tarvex_unordered_map<unsigned int, Data::CEntList> const& List() const;
  int HighestList() const;
  void SetList(int n, Data::CEntList const& list, SidMode sid = SidMode::Keep);
  void BlankList(int first, int count);

 protected:
  explicit GeometryTables(ModelCore& core) : m_core(core) {}
  ~GeometryTables() = default;
  GeometryTables(GeometryTables const&) = delete;
  GeometryTables& operator=(GeometryTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
