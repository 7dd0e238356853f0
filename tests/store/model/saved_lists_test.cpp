#include "store/model/saved_lists.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "tests/support/random_model.h"

namespace Tarvex::SavedListsTest {
namespace {

using Data::CEntList;
using Numbers = std::vector<int>;

/// A model with saved lists of elements of these texts, numbered from 1.
CZelData Model(std::vector<CString> const& texts) {
  CZelData model;
  for (auto const& text : texts) {
    int const n = model.HighestList() + 1;
    CString name;
    name.Format(L"list %i", n);
    model.SetList(n, CEntList(name, SelElement, text));
  }
  return model;
}

Numbers Order(CZelData const& model, Numbers const& from) {
  SavedLists lists(model.List(), SelElement);
  return ReachLists(lists, from).order;
}

TEST(SavedLists, AreFoundByNumberAndName) {
  auto model = Model({L"1", L"2"});
  model.SetList(7, CEntList(L"list 2", SelElement, L"3"));
  model.SetList(8, CEntList(L"nodes", SelNode, L"3"));
  model.SetList(9, CEntList(L"", SelElement, L"3"));
  SavedLists lists(model.List(), SelElement);
  EXPECT_EQ(lists.Find(1), &model.List(1));
  EXPECT_EQ(lists.Find(3), nullptr);
  EXPECT_EQ(lists.Find(8), nullptr);  // of another kind
  EXPECT_EQ(lists.Named(L"list 1"), 1);
  EXPECT_EQ(lists.Named(L"list 2"), 2);  // the lower of two
  EXPECT_EQ(lists.Named(L"List 1"), 0);
  EXPECT_EQ(lists.Named(L"nodes"), 0);
  EXPECT_EQ(lists.Named(L""), 0);
}

TEST(SavedLists, ReferToEachOtherByNumberAndName) {
  auto const model = Model({L"", L"", L"", L""});
  SavedLists lists(model.List(), SelElement);
  CEntList const list(SelElement, L"#2 4 not (\"list 1\" #9) and #3 PB1");
  EXPECT_EQ(lists.ReferredBy(Data::ListAccess::Text(list).Tokens()), (Numbers{2, 1, 3}));
}

TEST(SavedLists, TellWhichReferencesLeadToNone) {
  auto const model = Model({L"", L""});
  SavedLists lists(model.List(), SelElement);
  CEntList const list(SelElement, L"#2 #9 \"cellar\" \"list 1\" #9");
  EXPECT_EQ(lists.MissingIn(Data::ListAccess::Text(list).Tokens()),
            (std::vector<MissingList>{{9, L""}, {0, L"cellar"}, {9, L""}}));
}

TEST(SavedLists, ComeBehindWhatTheyReferTo) {
  auto const model = Model({L"#2 #3", L"#4", L"#4 5", L"1", L"2"});
  auto const order = Order(model, {1});
  EXPECT_EQ(order.size(), 4U);
  auto const place = [&](int n) { return std::find(order.begin(), order.end(), n); };
  EXPECT_LT(place(4), place(2));
  EXPECT_LT(place(4), place(3));
  EXPECT_LT(place(2), place(1));
  EXPECT_LT(place(3), place(1));
  EXPECT_EQ(Order(model, {5}), Numbers{5});
  EXPECT_EQ(Order(model, {}), Numbers());
}

TEST(SavedLists, TellWhichReachThemselves) {
  EXPECT_EQ(ListsThatReachThemselves(Model({L"#1"})), Numbers{1});
  EXPECT_EQ(ListsThatReachThemselves(Model({L"5 \"list 1\""})), Numbers{1});
  EXPECT_EQ(ListsThatReachThemselves(Model({L"#2", L"#3", L"1 #1", L"#1", L"#6", L"7"})),
            (Numbers{1, 2, 3}));  // 4 leads into the circle and stands outside
  EXPECT_EQ(ListsThatReachThemselves(Model({L"#2 #3", L"#3", L"1"})), Numbers());
  // Two circles that share list 2.
  EXPECT_EQ(ListsThatReachThemselves(Model({L"#2", L"#1 #3", L"#2", L"#3"})), (Numbers{1, 2, 3}));
}

TEST(SavedLists, DoNotGoRoundThroughAnotherKind) {
  auto model = Model({L"#2"});
  model.SetList(2, CEntList(L"", SelNode, L"#1"));
  EXPECT_EQ(ListsThatReachThemselves(model), Numbers());
  model.SetList(1, CEntList(L"", SelNode, L"#2"));
  EXPECT_EQ(ListsThatReachThemselves(model), (Numbers{1, 2}));
}

TEST(SavedLists, FollowAVeryLongChain) {
  constexpr int kMany = 20000;
  CZelData model;
  CString text;
  for (int n = 1; n <= kMany; ++n) {
    text.Format(L"#%i", n + 1);
    model.SetList(n, CEntList(SelElement, text));
  }
  EXPECT_EQ(Order(model, {1}).size(), static_cast<std::size_t>(kMany));
  EXPECT_EQ(ListsThatReachThemselves(model), Numbers());
  text.Format(L"#%i", 1);
  model.SetList(kMany, CEntList(SelElement, text));
  EXPECT_EQ(ListsThatReachThemselves(model).size(), static_cast<std::size_t>(kMany));
}

TEST(SavedLists, AgreeWithATransitiveClosure) {
  Testing::Random random(17);
  constexpr int kLists = 7;
  for (int i = 0; i < 500; ++i) {
    CZelData model;
    bool reach[kLists + 1][kLists + 1] = {};
    for (int n = 1; n <= kLists; ++n) {
      CEntList list(SelElement, L"5");
      for (int to = 1; to <= kLists; ++to)
        if (random.Percent(15)) {
          reach[n][to] = true;
          list.AddTo(Data::kSavedList);
          auto words = list.Word();
          words.push_back(to);
          list.SetTokens(words);
        }
      model.SetList(n, list);
    }
    for (int k = 1; k <= kLists; ++k)
      for (int a = 1; a <= kLists; ++a)
        for (int b = 1; b <= kLists; ++b) reach[a][b] = reach[a][b] || (reach[a][k] && reach[k][b]);
    Numbers expected;
    for (int n = 1; n <= kLists; ++n)
      if (reach[n][n]) expected.push_back(n);
    EXPECT_EQ(ListsThatReachThemselves(model), expected);
  }
}

}  // namespace
}  // namespace Tarvex::SavedListsTest
