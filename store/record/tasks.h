// The classes of analysis tasks.
#pragma once

#include <array>
#include <vector>

#include "store/numeric/direction.h"
#include "store/record/analysis_task.h"
#include "store/record/case_desc.h"
#include "store/record/held_list.h"
#include "store/record/spec.h"

namespace Tarvex {

class CZelData;

/// The modes that a task looks for.
struct ModalParams {
  int firstMode = 1;
  int numModes = 1;
  double shift = 0;  ///< added to the eigenvalues, rad^2/s^2

  friend bool operator==(ModalParams const& a, ModalParams const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<ModalParams>("firstMode", &ModalParams::firstMode),
                    Plain<ModalParams>("numModes", &ModalParams::numModes),
                    Plain<ModalParams>("shift", &ModalParams::shift));
  }
};

/// A task of the static and modal solver.
class TARVEX_STORE_EXPORT CZssTask : public Zel::TaskOf<CZssTask> {
 public:
  CZssTask() : CZssTask(CString(), AnalSoln::Static) {}
  CZssTask(CString const& name, AnalSoln solution) : TaskOf(name, TaskSolver::Static, solution) {}

  /// The loads whose axial forces act on the deflected shape: an analysis case ("A3"), a
  /// combination ("C2"), or load cases with factors.
  CString const& PDelta() const { return m_pDelta.Text(); }
  void SetPDelta(CString const& text) { m_pDelta = Data::CCombCaseDesc(text); }
  /// The number when PDelta is one analysis case, minus the number when it is one combination, 0
  /// for any other text.
  int PDeltaCase() const;
  /// Whether each load case is its own P-delta case.
  bool PDeltaAnalysis() const { return m_pDeltaAnalysis; }
  void SetPDeltaAnalysis(bool on) { m_pDeltaAnalysis = on; }
  /// Whether the forces of PDelta count.
  bool PDeltaEffects() const { return m_pDeltaEffects; }
  void SetPDeltaEffects(bool on) { m_pDeltaEffects = on; }
  /// Load cases that prestress the structure.
  CString const& Prestress() const { return m_prestress.Text(); }
  void SetPrestress(CString const& text) { m_prestress = Data::CCaseDesc(text); }

  /// Whether loads count as masses too.
  bool AdditionalMass() const { return m_additionalMass; }
  void SetAdditionalMass(bool on) { m_additionalMass = on; }
  /// The loads that count as masses, in which direction and by which factor.
  CString const& MassCase() const { return m_massCase.Text(); }
  void SetMassCase(CString const& text) { m_massCase = Data::CCaseDesc(text); }
  Direction MassDirection() const { return m_massDirection; }
  void SetMassDirection(Direction direction) { m_massDirection = direction; }
  double MassScale() const { return m_massScale; }
  void SetMassScale(double scale) { m_massScale = scale; }
  Data::CSpec::MassOp MassOption() const { return m_massOption; }
  void SetMassOption(Data::CSpec::MassOp option) { m_massOption = option; }

  ModalParams const& ModalParameters() const { return m_modal; }
  void SetModalParameters(ModalParams const& modal) { m_modal = modal; }
  /// Elements whose axial force does not act on the deflected shape.
  Data::Storage<Data::CEntList> const& GeoExclude() const { return m_geoExclude; }
  /// Throws std::invalid_argument for a list of another kind than elements that names something.
  void SetGeoExclude(Data::CEntList const& elements) { m_geoExclude.Put(elements); }

  static constexpr std::string_view kClass = "CZssTask";
  static constexpr auto Fields() {
    using R = CZssTask;
    return JoinRows(
        TaskFields<R>(),
        MakeRows(
            Plain<R>("pDelta", &R::m_pDelta), Plain<R>("pDeltaAnalysis", &R::m_pDeltaAnalysis),
            Plain<R>("pDeltaEffects", &R::m_pDeltaEffects), Plain<R>("prestress", &R::m_prestress),
            Plain<R>("additionalMass", &R::m_additionalMass), Plain<R>("massCase", &R::m_massCase),
            Plain<R>("massDirection", &R::m_massDirection), Plain<R>("massScale", &R::m_massScale),
            Plain<R>("massOption", &R::m_massOption), Plain<R>("modalParameters", &R::m_modal),
            Plain<R>("geoExclude", &R::m_geoExclude)));
  }

 private:
  Data::CCombCaseDesc m_pDelta;
  bool m_pDeltaAnalysis = false;
  bool m_pDeltaEffects = false;
  Data::CCaseDesc m_prestress;
  bool m_additionalMass = false;
  Data::CCaseDesc m_massCase;
  Direction m_massDirection = Direction::Z;
  double m_massScale = 1;
  Data::CSpec::MassOp m_massOption = Data::CSpec::MassOp::Lumped;
  ModalParams m_modal;
  Data::ListOf<SelElement> m_geoExclude;
};

/// Two nodes whose relative displacement is asked for, in an axis.
class CRelDisp {
 public:
  CRelDisp() = default;
  CRelDisp(int axis, int node1, int node2) : m_axis(axis), m_nodes{node1, node2} {}

  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  /// @param index 1 or 2, std::out_of_range for any other.
  int Node(int index) const { return m_nodes.at(static_cast<std::size_t>(index - 1)); }
  void SetNode(int index, int node) { m_nodes.at(static_cast<std::size_t>(index - 1)) = node; }

  friend bool operator==(CRelDisp const& a, CRelDisp const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Reference<CRelDisp, CModule::Axis>("axis", &CRelDisp::m_axis),
                    Reference<CRelDisp, CModule::Node>("nodes", &CRelDisp::m_nodes));
  }

 private:
  int m_axis = 0;
  std::array<int, 2> m_nodes{};
};

/// A task that answers an earthquake by the modes of another task and a response spectrum.
class TARVEX_STORE_EXPORT CZdSpecTask : public Zel::TaskOf<CZdSpecTask> {
 public:
  CZdSpecTask() : CZdSpecTask(CString(), AnalSoln::ResponseSpectrum) {}
  CZdSpecTask(CString const& name, AnalSoln solution)
      : TaskOf(name, TaskSolver::Spectrum, solution) {}

  /// Number of the modal task, 0 for none.
  int Task() const { return m_task; }
  void SetTask(int task) { m_task = task; }
  /// Load cases that act beside the earthquake.
  CString const& Load() const { return m_load.Text(); }
  void SetLoad(CString const& text) { m_load = Data::CCaseDesc(text); }
  /// Number of the action that its cases belong to.
  int Source() const { return m_source; }
  void SetSource(int source) { m_source = source; }
  /// Number of the response spectrum of a direction X, Y or Z, 0 for none; std::out_of_range for a
  /// rotation.
  int Spectrum(Direction direction) const { return m_spectra.at(IndexOf(direction)); }
  void SetSpectrum(Direction direction, int spectrum) {
    m_spectra.at(IndexOf(direction)) = spectrum;
  }
  int NumRelDisp() const { return static_cast<int>(m_relDisps.size()); }
  /// @param index from 0, std::out_of_range for one that is not there.
  CRelDisp const& RelDisp(int index) const {
    return m_relDisps.at(static_cast<std::size_t>(index));
  }
  /// The index behind the last appends.
  void SetRelDisp(int index, CRelDisp const& displacement);

  static constexpr std::string_view kClass = "CZdSpecTask";
  static constexpr auto Fields() {
    using R = CZdSpecTask;
    return JoinRows(TaskFields<R>(),
                    MakeRows(Reference<R, CModule::AnalysisTask>("task", &R::m_task),
                             Plain<R>("load", &R::m_load), Plain<R>("source", &R::m_source),
                             Reference<R, CModule::ResSpectrum>("spectrum", &R::m_spectra),
                             Plain<R>("relDisp", &R::m_relDisps)));
  }

 private:
  static std::size_t IndexOf(Direction direction) {
    return static_cast<std::size_t>(direction) - static_cast<std::size_t>(Direction::X);
  }

  int m_task = 0;
  Data::CCaseDesc m_load;
  int m_source = 1;
  std::array<int, 3> m_spectra{};
  std::vector<CRelDisp> m_relDisps;
};

/// A task that takes the extremes of cases.
class TARVEX_STORE_EXPORT CEnvelopeTask : public Zel::TaskOf<CEnvelopeTask> {
 public:
  CEnvelopeTask() : CEnvelopeTask(CString()) {}
  explicit CEnvelopeTask(CString const& name)
      : TaskOf(name, TaskSolver::Envelope, AnalSoln::None) {}

  /// The cases ("A1 to A5 or C2").
  CString const& Desc() const { return m_desc.Text(); }
  /// @param model where the cases stand, null for none to look at.
  void SetDesc(CString const& text, CZelData const* model);

  static constexpr std::string_view kClass = "CEnvelopeTask";
  static constexpr auto Fields() {
    return JoinRows(TaskFields<CEnvelopeTask>(),
                    MakeRows(Plain<CEnvelopeTask>("desc", &CEnvelopeTask::m_desc)));
  }

 private:
  Data::CCombCaseDesc m_desc;
};

/// A task that lets a structure relax into the form of its forces.
class TARVEX_STORE_EXPORT CFormRelaxTask : public Zel::TaskOf<CFormRelaxTask> {
 public:
  CFormRelaxTask() : CFormRelaxTask(CString()) {}
  explicit CFormRelaxTask(CString const& name)
      : TaskOf(name, TaskSolver::Relaxation, AnalSoln::FormRelaxation) {}

  /// Elements whose buckling by Euler is looked at.
  Data::Storage<Data::CEntList> const& GetEulerElemList() const { return m_eulerElements; }
  /// Throws std::invalid_argument for a list of another kind than elements that names something.
  void SetEulerElemList(Data::CEntList const& elements) { m_eulerElements.Put(elements); }

  static constexpr std::string_view kClass = "CFormRelaxTask";
  static constexpr auto Fields() {
    return JoinRows(
        TaskFields<CFormRelaxTask>(),
        MakeRows(Plain<CFormRelaxTask>("eulerElemList", &CFormRelaxTask::m_eulerElements)));
  }

 private:
  Data::ListOf<SelElement> m_eulerElements;
};

/// A task of member design.
class CDesignTask : public NamedEntity {
 public:
  CDesignTask() = default;
  explicit CDesignTask(CString const& name) : NamedEntity(0, name) {}

  friend bool operator==(CDesignTask const& a, CDesignTask const& b) { return Same(a, b); }
  static constexpr auto Fields() { return NamedFields<CDesignTask>(); }
};

}  // namespace Tarvex
