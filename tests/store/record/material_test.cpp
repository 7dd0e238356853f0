#include "store/record/material.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::Design::MaterialTest {
namespace {

TEST(ElasticValues, ComparesEveryField) {
  using R = ElasticValues;
  Testing::ExpectFields<R>({{"youngsModulus", [](R& r) { r.youngsModulus = 1; }},
                            {"poissonsRatio", [](R& r) { r.poissonsRatio = 1; }},
                            {"density", [](R& r) { r.density = 1; }},
                            {"thermalExpansion", [](R& r) { r.thermalExpansion = 1; }},
                            {"dampingRatio", [](R& r) { r.dampingRatio = 1; }}});
}

TEST(MatSteel, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CMatSteel(L"grade").Name(), L"grade"); }

TEST(MatSteel, ComparesEveryField) {
  using R = CMatSteel;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"elastic", [](R& r) { r.elastic.density = 1; }},
                                  {"yieldStrength", [](R& r) { r.yieldStrength = 1; }},
                                  {"ultimateStrength", [](R& r) { r.ultimateStrength = 1; }},
                                  {"ultimateStrain", [](R& r) { r.ultimateStrain = 1; }}});
}

TEST(MatConc, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CMatConc(L"grade").Name(), L"grade"); }

TEST(MatConc, ComparesEveryField) {
  using R = CMatConc;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"elastic", [](R& r) { r.elastic.density = 1; }},
                                  {"cylinderStrength", [](R& r) { r.cylinderStrength = 1; }},
                                  {"cubeStrength", [](R& r) { r.cubeStrength = 1; }},
                                  {"tensileStrength", [](R& r) { r.tensileStrength = 1; }},
                                  {"crushingStrain", [](R& r) { r.crushingStrain = 1; }},
                                  {"lightweight", [](R& r) { r.lightweight = true; }}});
}

TEST(MatFrp, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CMatFrp(L"grade").Name(), L"grade"); }

TEST(MatFrp, ComparesEveryField) {
  using R = CMatFrp;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"elastic", [](R& r) { r.elastic.density = 1; }},
                                  {"tensileStrength", [](R& r) { r.tensileStrength = 1; }},
                                  {"compressiveStrength", [](R& r) { r.compressiveStrength = 1; }},
                                  {"shearStrength", [](R& r) { r.shearStrength = 1; }},
                                  {"ruptureStrain", [](R& r) { r.ruptureStrain = 1; }}});
}

TEST(MatAlum, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CMatAlum(L"grade").Name(), L"grade"); }

TEST(MatAlum, ComparesEveryField) {
  using R = CMatAlum;
  Testing::ExpectStoredFields<R>(
      {{"name", [](R& r) { r.SetName(L"n"); }},
       {"sid", [](R& r) { r.SetSid(L"s"); }},
       {"colour", [](R& r) { r.SetColour(1); }},
       {"elastic", [](R& r) { r.elastic.density = 1; }},
       {"proofStrength", [](R& r) { r.proofStrength = 1; }},
       {"ultimateStrength", [](R& r) { r.ultimateStrength = 1; }},
       {"proofStrengthHaz", [](R& r) { r.proofStrengthHaz = 1; }},
       {"ultimateStrengthHaz", [](R& r) { r.ultimateStrengthHaz = 1; }}});
}

TEST(MatTimber, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CMatTimber(L"grade").Name(), L"grade"); }

TEST(MatTimber, ComparesEveryField) {
  using R = CMatTimber;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"elastic", [](R& r) { r.elastic.density = 1; }},
                                  {"bendingStrength", [](R& r) { r.bendingStrength = 1; }},
                                  {"tensionStrength", [](R& r) { r.tensionStrength = 1; }},
                                  {"compressionStrength", [](R& r) { r.compressionStrength = 1; }},
                                  {"bearingStrength", [](R& r) { r.bearingStrength = 1; }},
                                  {"shearStrength", [](R& r) { r.shearStrength = 1; }},
                                  {"modulusAcrossGrain", [](R& r) { r.modulusAcrossGrain = 1; }},
                                  {"shearModulus", [](R& r) { r.shearModulus = 1; }}});
}

TEST(MatGlass, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CMatGlass(L"grade").Name(), L"grade"); }

TEST(MatGlass, ComparesEveryField) {
  using R = CMatGlass;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"elastic", [](R& r) { r.elastic.density = 1; }},
                                  {"bendingStrength", [](R& r) { r.bendingStrength = 1; }},
                                  {"surfacePrestress", [](R& r) { r.surfacePrestress = 1; }}});
}

TEST(MatFabric, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CMatFabric(L"grade").Name(), L"grade"); }

TEST(MatFabric, ComparesEveryField) {
  using R = CMatFabric;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"elastic", [](R& r) { r.elastic.density = 1; }},
                                  {"warpStiffness", [](R& r) { r.warpStiffness = 1; }},
                                  {"weftStiffness", [](R& r) { r.weftStiffness = 1; }},
                                  {"shearStiffness", [](R& r) { r.shearStiffness = 1; }},
                                  {"warpStrength", [](R& r) { r.warpStrength = 1; }},
                                  {"weftStrength", [](R& r) { r.weftStrength = 1; }}});
}

TEST(MatRebar, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CMatRebar(L"grade").Name(), L"grade"); }

TEST(MatRebar, ComparesEveryField) {
  using R = CMatRebar;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"elastic", [](R& r) { r.elastic.density = 1; }},
                                  {"yieldStrength", [](R& r) { r.yieldStrength = 1; }},
                                  {"ultimateStrength", [](R& r) { r.ultimateStrength = 1; }},
                                  {"ultimateStrain", [](R& r) { r.ultimateStrain = 1; }}});
}

}  // namespace
}  // namespace Tarvex::Data::Design::MaterialTest
