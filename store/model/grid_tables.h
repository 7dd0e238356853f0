// Tables of grids, of lines that loads and structure are laid out along, and of what groups and
// shows entities. The operations are those of store/model/entity_tables.h.
#pragma once

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/table/paged_table.h"

namespace Tarvex {

class ModelCore;
namespace Data {
class CAlignment;
class CAssembly;
class CBlock;
class CGridLine;
class CGridPlane;
class CGridSurface;
class CGrView;
class COpView;
class CPolyline;
}  // namespace Data

/// Grids, blocks, assemblies and views of a model.
class TARVEX_STORE_EXPORT GridTables {
 public:
  // Grid planes (23).
  bool GridPlaneExist(int n) const;
  Data::CGridPlane const& GridPlane(int n) const;
  tarvex_unordered_map<unsigned int, Data::CGridPlane> const& GridPlane() const;
  int HighestGridPlane() const;
  void SetGridPlane(int n, Data::CGridPlane const& plane, SidMode sid = SidMode::Keep);
  void BlankGridPlane(int first, int count);

  // Grid surfaces (24). They are stored with the panels that they bring; see CGridSurface.
  bool GridSurfaceExist(int n) const;
  Data::CGridSurface const& GridSurface(int n) const;
  tarvex_unordered_map<unsigned int, Data::CGridSurface> const& GridSurface() const;
  int HighestGridSurface() const;
  void SetGridSurface(int n, Data::CGridSurface const& surface, SidMode sid = SidMode::Keep);
  /// The flag is without effect.
  void SetGridSurface(int n, Data::CGridSurface const& surface, bool flag,
                      SidMode sid = SidMode::Keep);
  void BlankGridSurface(int first, int count);

  // Grid lines (no module number).
  bool GridLineExist(int n) const;
  Data::CGridLine const& GridLine(int n) const;
  tarvex_unordered_map<unsigned int, Data::CGridLine> const& GridLine() const;
  int HighestGridLine() const;
  void SetGridLine(int n, Data::CGridLine const& line, SidMode sid = SidMode::Keep);
  void BlankGridLine(int first, int count);

  // Polylines (25).
  bool PolylineExist(int n) const;
  Data::CPolyline const& Polyline(int n) const;
  tarvex_unordered_map<unsigned int, Data::CPolyline> const& Polyline() const;
  int HighestPolyline() const;
  void SetPolyline(int n, Data::CPolyline const& polyline, SidMode sid = SidMode::Keep);
  void BlankPolyline(int first, int count);

  // Alignments (no module number).
  bool AlignmentExist(int n) const;
  Data::CAlignment const& Alignment(int n) const;
  tarvex_unordered_map<unsigned int, Data::CAlignment> const& Alignment() const;
  int HighestAlignment() const;
  void SetAlignment(int n, Data::CAlignment const& alignment, SidMode sid = SidMode::Keep);
  void BlankAlignment(int first, int count);

  // Blocks (no module number).
  bool BlockExist(int n) const;
  Data::CBlock const& Block(int n) const;
  tarvex_unordered_map<unsigned int, Data::CBlock> const& Block() const;
  int HighestBlock() const;
  void SetBlock(int n, Data::CBlock const& block, SidMode sid = SidMode::Keep);
  void BlankBlock(int first, int count);

  // Assemblies (no module number).
  bool AssemblyExist(int n) const;
  Data::CAssembly const& Assembly(int n) const;
  tarvex_unordered_map<unsigned int, Data::CAssembly> const& Assembly() const;
  int HighestAssembly() const;
  void SetAssembly(int n, Data::CAssembly const& assembly, SidMode sid = SidMode::Keep);
  void BlankAssembly(int first, int count);

  // Graphic views (no module number).
  bool GrViewExist(int n) const;
  Data::CGrView const& GrView(int n) const;
  tarvex_unordered_map<unsigned int, Data::CGrView> const& GrView() const;
  int HighestGrView() const;
  void SetGrView(int n, Data::CGrView const& view, SidMode sid = SidMode::Keep);
  void BlankGrView(int first, int count);

  // Output views (no module number).
  bool OpViewExist(int n) const;
  Data::COpView const& OpView(int n) const;
  tarvex_unordered_map<unsigned int, Data::COpView> const& OpView() const;
  int HighestOpView() const;
  void SetOpView(int n, Data::COpView const& view, SidMode sid = SidMode::Keep);
  void BlankOpView(int first, int count);

 protected:
  explicit GridTables(ModelCore& core) : m_core(core) {}
  ~GridTables() = default;
  GridTables(GridTables const&) = delete;
  GridTables& operator=(GridTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
