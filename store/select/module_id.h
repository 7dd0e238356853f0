// Numbers of the model's tables.
#pragma once

namespace Tarvex {

/// Holder of the enumeration that names a table. The numbers are part of recorded work: never
/// change one.
struct CModule {
  enum ModuleId : int {
    None = -1,         ///< no table, or a table without a number of its own
    Storey = -2,       ///< no table: storeys are numbered by the grid planes that are one
    SoilProfile = -3,  ///< soil profiles, whose table has no number
    ResSpectrum = -4,  ///< response spectra, whose table has no number
    Axis = 20,
    GridPlane = 23,
    GridSurface = 24,
    Polyline = 25,
    MatSteel = 30,
    MatConcrete = 31,
    MatFrp = 32,
    MatAluminium = 33,
    MatTimber = 34,
    MatGlass = 35,
    MatFabric = 36,
    MatRebar = 37,
    MatAnal = 38,
    MatCurve = 39,
    MatMatrix = 40,
    Section = 50,
    SpringProp = 52,
    MassProp = 53,
    Prop2D = 54,
    Prop3D = 55,
    LinkProp = 56,
    DamperProp = 57,
    CableProp = 58,
    SpacerProp = 59,
    ForceDensity1D = 62,
    SoapStress1D = 63,
    ForceDensity2D = 64,
    SoapStress2D = 65,
    RC2DProp = 75,
    Node = 80,
    Member = 100,
    Elem = 110,  ///< elements and load panels together: they share their numbers
    LoadCaseTitle = 130,
    NodeLoad = 135,
    AppliedDisplacement = 136,
    Settlement = 137,
    BeamLoad = 140,
    AxialLoad = 142,
    BeamDist = 143,
    BeamThermalLoad = 144,
    FaceLoad = 150,
    EdgeLoad = 151,
    InPlaneLoad = 152,
    FaceThermalLoad = 153,
    BodyFaceLoad = 155,
    BodyThermalLoad = 156,
    GridPointLoad = 161,
    GridLineLoad = 162,
    GridAreaLoad = 163,
    GravityLoad = 170,
    AnalStage = 230,
    AnalysisTask = 235,
    CombinationCase = 236,
    DesignTask = 239,
    AnalysisCase = 274,
  };
};

}  // namespace Tarvex
