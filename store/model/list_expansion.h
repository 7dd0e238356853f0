// What lists select on a model, and lists changed with a model at hand.
//
// A list of nodes, elements or members selects records that exist. Expansions are right at all
// times, in a rebuild hold too: a model keeps each with the state of the tables that it was made
// from, and makes it anew when one of them has changed.
#pragma once

#include <map>
#include <vector>

#include "store/export.h"
#include "store/record/ent_list.h"
#include "store/select/bit_container.h"
#include "store/select/reference.h"

namespace Tarvex {

class CZelData;

namespace Util {

// In all of these:
//   highest  of lists without a kind (stages, properties, storeys): the number up to which "all"
//   and
//            "*" go; -1 for the highest stage. Of other lists: the stage whose properties and
//            materials the words for them mean; -1 and 0 for those of the model
//   panels   whether load panels count as elements
// Lists of cases select cases, whether they exist or not.

/// What a list selects.
TARVEX_STORE_EXPORT CSet MakeSet(Data::CEntList const& list, CZelData const& model,
                                 bool panels = false);

/// What a list selects, in ascending order. The reference is good until the list changes or goes,
/// or is expanded again after the model has changed. Never holds 0.
TARVEX_STORE_EXPORT CBitContainer const& Item(Data::CEntList const& list, CZelData const& model,
                                              int highest = -1, bool panels = false);

/// What a list selects, in the order in which it names them, each once.
TARVEX_STORE_EXPORT void Items(Data::CEntList const& list, std::vector<int>& items,
                               CZelData const& model, bool panels = false);

/// How many a list selects. CEntList::Item and CEntList::Case tell them one by one afterwards.
TARVEX_STORE_EXPORT int NumItem(Data::CEntList const& list, CZelData const& model, int highest = -1,
                                bool panels = false);

/// Whether a list selects an entity, or names its number singly or in a range while no such entity
/// exists. False for a reference of another kind than the list's. A list without a kind that goes
/// by "all" or names it includes 0.
TARVEX_STORE_EXPORT bool IsItemIncluded(Data::CEntList const& list, SEntRef ref,
                                        CZelData const& model, int highest = -1,
                                        bool panels = false);

/// Takes one number out of a list. A list of numbers and ranges stays one; any other gets it behind
/// "not". @return whether the list held it.
TARVEX_STORE_EXPORT bool Delete(Data::CEntList& list, int number, CZelData const& model);

/// Writes for each old number of a list its new ones, in order; none for one that has gone. A range
/// is split at a number that changes; "all" and words are left alone; a list that names nothing any
/// more is empty. @return whether the list changed.
TARVEX_STORE_EXPORT bool Replace(Data::CEntList& list,
                                 std::map<int, std::vector<int>> const& numbers,
                                 CZelData const& model);

/// Writes the numbers that they select in the place of words that select by property.
/// @return false, and the list as it was, when it would gain more than 10000000 numbers.
TARVEX_STORE_EXPORT bool ExpandListProp(Data::CEntList& list, CZelData const& model);

/// Writes ranges out, but for those that end with "*". @return as ExpandListProp.
TARVEX_STORE_EXPORT bool ExpandListRange(Data::CEntList& list);

}  // namespace Util
}  // namespace Tarvex
