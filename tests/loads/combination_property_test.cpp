// What holds of any run on any model.
#include "store/model/undo_step.h"
#include "store/record/task_slot.h"
#include "tests/loads/combination_support.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::CombinationPropertyTest {
namespace {

using Testing::AllTasks;
using Testing::IsUnchanged;
using Testing::OpenEuro;
using Testing::OpenEuroUk;
using Testing::Random;

constexpr int kModels = 60;

/// Adds actions of all kinds with few sources, so that many share one.
void AddRandomActions(CZelData& model, Random& random) {
  std::vector<CaseType> const kinds{
      CaseType::SelfWeight,  CaseType::Soil,          CaseType::PermanentEquivalent,
      CaseType::Prestress,   CaseType::Imposed,       CaseType::Imposed,
      CaseType::ImposedRoof, CaseType::Wind,          CaseType::Snow,
      CaseType::Rain,        CaseType::Thermal,       CaseType::VariableEquivalent,
      CaseType::Accidental,  CaseType::SeismicStatic, CaseType::SeismicTorsion,
      CaseType::Undefined};
  // On static tasks of its own, so that what the model had does not matter.
  model.SetAnalysisTask(Testing::kStaticTask, CZssTask(L"", AnalSoln::Static));
  for (int i = random.Int(0, 9); i > 0; --i) {
    auto const kind = random.Of(kinds);
    int const source = random.Int(-1, 2);
    int const highest = kind == CaseType::SeismicTorsion ? 3 : 8;
    Testing::AddAction(model, kind, source, random.Int(0, highest));
  }
  for (int i = random.Int(0, 4); i > 0; --i) {
    int const source = random.Int(1, 2);
    Testing::AddResponse(model, source, random.Int(0, 3));
  }
}

/// What a run is told.
struct Choice {
  std::vector<int> tasks;
  std::array<bool, kNumCombTypes> families;
  int psi;
  Data::RespComb rule;

  Choice(CZelData const& model, Random& random)
      : tasks(AllTasks(model)),
        psi(random.Int(0, 2)),
        rule(static_cast<Data::RespComb>(random.Int(1, 2))) {
    for (bool& on : families) on = random.Percent(70);
  }
  template <class Generator>
  Generator For(CZelData& model) const {
    auto generator = Testing::OnTasks<Generator>(model, tasks, families);
    generator.SetPsiAccidental(psi);
    generator.SetSeismic(rule);
    return generator;
  }
};

/// Calls check(before, choice) on random models with random actions.
template <class Check>
void ForEachChoice(Check&& check) {
  Testing::ForEachRandomModel(kModels, [&](CZelData model, Random& random) {
    AddRandomActions(model, random);
    Choice const choice(model, random);
    check(model, choice);
  });
}

TEST(CombinationProperty, AddsCombinationsBehindTheHighestAndChangesNothingElse) {
  int added = 0;
  ForEachChoice([&](CZelData const& before, Choice const& choice) {
    CZelData after(before);
    choice.For<OpenEuro>(after).Combine();
    int const highest = before.HighestCombinationCase();
    for (auto const& line : Testing::Differences(after, before)) {
      int n = 0;
      ASSERT_EQ(line.rfind("CombinationCase ", 0), 0u) << line;
      n = std::stoi(line.substr(16));
      ASSERT_GT(n, highest) << line;
      ASSERT_NE(line.find("came"), std::string::npos) << line;
      ++added;
    }
  });
  EXPECT_GT(added, 20 * kModels);
}

TEST(CombinationProperty, WritesAsManyAsPlanned) {
  ForEachChoice([&](CZelData const& before, Choice const& choice) {
    CZelData after(before);
    auto generator = choice.For<OpenEuro>(after);
    auto const plan = generator.Plan();
    ASSERT_TRUE(IsUnchanged(after, before));
    generator.Combine();
    auto const written = after.HighestCombinationCase() - before.HighestCombinationCase();
    ASSERT_EQ(written, plan.Total());
    // Finals stand where the plan has the ends of the families.
    long long end = before.HighestCombinationCase() + static_cast<long long>(plan.actions.size());
    for (std::size_t type = 0; type < 6; ++type) {
      if (plan.families[type] == 0) continue;
      end += plan.families[type];
      ASSERT_EQ(after.CombinationCase(static_cast<int>(end)).Name(),
                OpenEuro::CombTypeDesc(static_cast<CombType>(type)));
    }
  });
}

TEST(CombinationProperty, SaysTrueUnlessAFamilyLacksItsCases) {
  int refused = 0;
  ForEachChoice([&](CZelData const& before, Choice const& choice) {
    CZelData after(before);
    auto generator = choice.For<OpenEuro>(after);
    auto const plan = generator.Plan();
    bool const lacks = (choice.families[1] && plan.families[1] == 0) ||
                       (choice.families[2] && plan.families[2] == 0) || plan.actions.empty();
    ASSERT_EQ(generator.Combine(), !lacks);
    bool const tells = choice.families[2] && plan.families[2] == 0 && !plan.actions.empty();
    ASSERT_EQ(generator.Report(), tells ? L"ULS Seismic: no seismic cases\n" : L"");
    refused += lacks ? 1 : 0;
  });
  EXPECT_GT(refused, 0);
  EXPECT_LT(refused, kModels);
}

TEST(CombinationProperty, GivesTheSameFromTheSameState) {
  ForEachChoice([](CZelData const& before, Choice const& choice) {
    CZelData once(before);
    CZelData again(before);
    choice.For<OpenEuro>(once).Combine();
    choice.For<OpenEuro>(again).Combine();
    ASSERT_TRUE(IsUnchanged(again, once));
  });
}

TEST(CombinationProperty, IsUndoneByAbandoningItsStepOrByUndo) {
  ForEachChoice([](CZelData const& before, Choice const& choice) {
    CZelData model(before);
    {
      CUndoStep step(model);
      choice.For<OpenEuro>(model).Combine();
    }
    ASSERT_TRUE(IsUnchanged(model, before));
    CUndoStep step(model);
    choice.For<OpenEuro>(model).Combine();
    step.Accept();
    model.Undo();
    ASSERT_TRUE(IsUnchanged(model, before));
  });
}

TEST(CombinationProperty, WritesDescriptionsThatNameWhatStandsBeforeThem) {
  ForEachChoice([](CZelData const& before, Choice const& choice) {
    CZelData after(before);
    choice.For<OpenEuro>(after).Combine();
    for (int n = before.HighestCombinationCase() + 1; n <= after.HighestCombinationCase(); ++n) {
      auto const text = after.CombinationCase(n).Description().Text();
      CString nothing;
      nothing.Format(L"C%i to C%i", n, n - 1);
      if (text == nothing) continue;  // where nothing can lead beside another
      ASSERT_TRUE(after.CombinationCase(n).Description().IsReadable()) << text.ToUtf8();
      for (int at = text.Find(L"C"); at >= 0; at = text.Find(L"C", at + 1)) {
        int const named = std::stoi(text.Mid(at + 1).Str());
        ASSERT_GT(named, before.HighestCombinationCase()) << text.ToUtf8();
        ASSERT_LT(named, n) << text.ToUtf8();
      }
      for (int at = text.Find(L"A"); at >= 0; at = text.Find(L"A", at + 1)) {
        ASSERT_TRUE(after.AnalysisCaseExist(std::stoi(text.Mid(at + 1).Str())));
      }
    }
  });
}

TEST(CombinationProperty, OfTheUnitedKingdomDiffersInDescriptionsOfWindAndRoofsOnly) {
  int differ = 0;
  ForEachChoice([&](CZelData const& before, Choice const& choice) {
    CZelData euro(before);
    CZelData uk(before);
    choice.For<OpenEuro>(euro).Combine();
    choice.For<OpenEuroUk>(uk).Combine();
    for (auto const& line : Testing::Differences(uk, euro)) {
      ++differ;
      auto const n = std::stoi(line.substr(line.find(' ')));
      auto const name = uk.CombinationCase(n).Name();
      ASSERT_TRUE(line.ends_with(": description")) << line;
      // A leading action has psi0 where the accidental selector says so.
      bool const hasPsi0 = name.Find(L"(Accompanying)") >= 0 || name.Find(L"(Leading)") >= 0;
      ASSERT_TRUE(hasPsi0) << name.ToUtf8();
      ASSERT_TRUE(name.Find(L"Wind") >= 0 || name.Find(L"(roof)") >= 0 || name.Find(L"H (") >= 0)
          << name.ToUtf8();
    }
  });
  EXPECT_GT(differ, 0);
}

// The variable actions, way by way.

using PlainGroup = std::vector<std::tuple<int, int>>;  // number, source

std::string PlainAll(PlainGroup const& group, int n, bool leading) {
  int source = 0;
  for (auto const& [number, s] : group)
    if (number == n) source = s;
  if (source < 0) return {};
  int const d = leading ? 0 : 1;
  auto text = "C" + std::to_string(n + d) + " + ";
  for (auto const& [number, s] : group)
    if (number != n && s == -source) text += "C" + std::to_string(number + d) + " + ";
  return text;
}

void PlainSort(PlainGroup& group) {
  for (std::size_t i = 0; i < group.size(); ++i)
    for (std::size_t k = i + 1; k < group.size(); ++k)
      if (std::get<1>(group[k]) == std::get<1>(group[i])) std::get<1>(group[k]) *= -1;
}

/// Adds the texts of all ways from a group on, with what stands before them.
void PlainWays(std::vector<PlainGroup> const& groups, std::size_t from, std::size_t leading,
               std::string const& text, bool leads, bool others, std::vector<std::string>& list) {
  if (from == 6) {
    if (leads && others) list.push_back(text);
    return;
  }
  if (groups[from].empty()) return PlainWays(groups, from + 1, leading, text, leads, others, list);
  for (auto const& entry : groups[from]) {
    auto const part = PlainAll(groups[from], std::get<0>(entry), from == leading);
    bool const counts = !part.empty();
    PlainWays(groups, from + 1, leading, text + part, leads || (counts && from == leading),
              others || (counts && from != leading), list);
  }
}

/// Name and description of each way and of their envelope.
std::vector<std::string> PlainVariableB(CZelData const& model,
                                        std::map<int, Data::CLoadCaseTitle> const& titles,
                                        int highest) {
  std::vector<PlainGroup> groups(7);
  int n = highest + 1;
  for (auto const& entry : titles) {
    auto const type = static_cast<int>(entry.second.TypeOf());
    if (type < 30 || type > 39) continue;
    int const group = type == 31 ? 0 : type == 32 ? 6 : type == 39 ? 5 : type - 32;
    groups[static_cast<std::size_t>(group)].emplace_back(n, entry.second.Source());
    n += 2;
  }
  for (auto& group : groups) PlainSort(group);
  std::size_t total = 0;
  for (std::size_t group = 0; group < 6; ++group) total += groups[group].size();
  if (total < 2) return {};
  std::vector<std::string> list;
  for (std::size_t leading = 0; leading < 6; ++leading) {
    if (leading == 0)
      for (auto const& [number, source] : groups[0])
        for (auto const& [roof, roofSource] : groups[6])
          if (source == roofSource)
            list.push_back(PlainAll(groups[0], number, true) + PlainAll(groups[6], roof, true));
    PlainWays(groups, 0, leading, {}, false, false, list);
  }
  std::vector<std::string> lines;
  int const first = n;
  for (std::size_t place = 0; place < list.size(); ++place) {
    if (list[place].empty()) continue;
    auto text = list[place];
    text.erase(text.size() - 3);
    lines.push_back(std::to_string(n++) + " Variable " + std::to_string(place + 1) + " = " + text);
  }
  lines.push_back(std::to_string(n) + " Variable = C" + std::to_string(first) + " to C" +
                  std::to_string(n - 1));
  EXPECT_EQ(model.HighestCombinationCase(), n);
  return lines;
}

TEST(CombinationProperty, WritesTheWaysOfVariableActionsThatThePlainRulesGive) {
  int ways = 0;
  Testing::ForEachRandomModel(3 * kModels, [&](CZelData const&, Random& random) {
    CZelData model;
    AddRandomActions(model, random);
    auto generator = Testing::WithBasics(model);
    auto const titles = generator.Plan().actions;
    int const highest = model.HighestCombinationCase();
    std::map<int, Data::CLoadCaseTitle> written;
    for (auto const& entry : titles)
      if (entry.first <= highest) written.insert(entry);
    generator.VariableCombB(CombUlsPersistent);
    auto const expected = PlainVariableB(model, written, highest);
    auto lines = Testing::Lines(model, highest + 1);
    std::erase_if(lines, [](auto const& line) { return line.find("ing) =") != std::string::npos; });
    ASSERT_EQ(lines, expected);
    ways += static_cast<int>(lines.size());
  });
  EXPECT_GT(ways, kModels);
}

}  // namespace
}  // namespace Tarvex::CombinationPropertyTest
