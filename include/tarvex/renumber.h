// Renumbering: records of a model moved to other numbers, or deleted, with every reference to them.
//
//   Tarvex::CRenumber renumber(&model);
//   renumber.Index(CModule::Node);               // close the holes in the numbers of nodes
//   renumber.Index(unwanted, CModule::None);     // delete the elements of a list
//   renumber.Go(false);                          // move the records, rewrite what names them
//
// A scheme says for a table which old number becomes which new one. A table without a scheme stays
// as it is; a number that the scheme of its table lacks is deleted. Several old numbers may share a
// new one: that is how records are merged.
#pragma once

#include <map>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "store/numeric/vec.h"
#include "store/record/ent_list.h"
#include "store/select/reference.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;

/// The one place where numbers of records are changed. Schemes are built table by table with Index
/// and IndexItem, then Go applies them. An object serves one thread and can be used again: its
/// schemes stay. All that needs a model throws std::logic_error when there is none.
class TARVEX_EXPORT CRenumber {
 public:
  explicit CRenumber(CZelData* model = nullptr);
  CRenumber(CRenumber const& other);
  CRenumber& operator=(CRenumber const& other);
  ~CRenumber();

  /// Takes another model and forgets all schemes.
  void SetData(CZelData* model);
  /// Whether Go rewrites references alone, for a tool that has moved the records itself.
  void SetRefOnly(bool refOnly);

  // Schemes. Each form replaces the scheme of its table. All but the last two are to be called
  // before the first IndexItem of the table.
  /// Closes the holes: the existing numbers become 1, 2, 3 and so on, in their order. For 110
  /// elements and load panels count together, for 130 untitled load cases too.
  void Index(CModule::ModuleId module);
  /// Shifts the numbers from `from` on. Numbers compare without sign. For 53 the numbers are those
  /// of the 2D properties. A table that can't be shifted (all but 20, 23 to 25, 30 to 40, 50, 52 to
  /// 59, 62 to 65, 75, 80, 100, 110, 130, 230, 235, 236, 274) gets an empty scheme.
  void Index(CModule::ModuleId module, unsigned int from, int shift);
  /// Orders nodes, elements with load panels, or members along a direction by their centres; the
  /// set of numbers in use stays. Of equal ones the lower number comes first. Any other kind throws
  /// std::out_of_range "bad entity type".
  void Index(SelType kind, Vec3<double> const& direction);
  /// Keeps all numbers but those of a list, which are deleted. The table is that of the list's
  /// kind; a list of cases is for 130, 235, 274 and 236; one without a kind is for the given table.
  void Index(Data::CEntList const& list, CModule::ModuleId module);
  /// Takes a scheme as it is, old number to new. Old numbers not from 1 to 100000000 are left out.
  void Index(CModule::ModuleId module, std::map<int, int> const& scheme);

  /// Gives everything that now becomes `from` the new number `to` instead; chains hold. Costs the
  /// logarithm of the number of records, taken over many calls.
  void IndexItem(CModule::ModuleId module, int from, int to);
  /// The same for many pairs (from, to), one after the other.
  void IndexItems(CModule::ModuleId module, std::span<std::pair<int, int> const> pairs);
  /// The new number; the number itself for a table without a scheme and for one below 1; 0 for a
  /// record that goes.
  int MapItem(CModule::ModuleId module, int number) const;

  /// Applies the schemes: moves the records and rewrites all references, lists and descriptions of
  /// cases; with SetRefOnly it rewrites alone. Records that lose what they can't be without are
  /// removed. New numbers must be from 1 to 100000000, or 0 for a record that goes: any other is
  /// std::out_of_range before anything changes.
  /// @param keepDescriptions whether descriptions in tasks and analysis cases stay as they are.
  /// @return false when properties are renumbered and an element has a type without a table of
  /// properties: the run ends there, and what was done stays done. A saved list of kind 5 and an
  /// assembly of cases raise std::out_of_range "bad entity type".
  bool Go(bool keepDescriptions) const;

  /// Rewrites the cases of tasks and all descriptions of a model. Tasks and cases keep their
  /// descriptions when told to; combinations and descriptions of their own are always rewritten.
  void AdjustCaseRefs(CZelData* model, std::map<SCaseRef, int> const& cases,
                      bool keepDescriptions) const;
  /// A description with the new numbers of its cases, where their table has a scheme; a case that
  /// has none is written as its letter and "<deleted case>".
  CString MapCaseDesc(CString description, std::map<SCaseRef, int> const& cases) const;

  // Chains of replacements: old number to new ones, in order. A map must not hold a cycle.
  /// The number, then what finally stands in its place: itself when nothing does.
  static std::vector<int> Renumber(int number, std::map<int, std::vector<int>> const& map);
  /// A row for each number, in order.
  static std::vector<std::vector<int>> Renumber(std::vector<int> const& numbers,
                                                std::map<int, std::vector<int>> const& map);
  /// The same from pairs (old, new); a later pair counts over an earlier one.
  static std::vector<std::vector<int>> Renumber(std::vector<int> const& numbers,
                                                std::vector<std::pair<int, int>> const& pairs);
  /// A row for each number that has replacements and replaces nothing: the number, then what
  /// finally stands in its place. Ascending.
  static std::vector<std::vector<int>> RenumberGetCompressedScheme(
      std::map<int, std::vector<int>> const& map);

 protected:
  /// Whether a table has a scheme, be it an empty one.
  bool IsModule(CModule::ModuleId module) const;
  /// Highest number and existence of an entity before the run; without a run, now.
  int HighestItem(SelType kind) const;
  bool ItemExist(SelType kind, int number) const;

  /// Puts loads on the new numbers of their load cases and drops those of deleted ones; loads
  /// without a case stay. Body loads are left alone. @return whether any load was stored.
  bool GoCases() const;
  /// A list with the new numbers. @param module table of a list without a kind; of all but 230 it
  /// comes out empty. @param propertyModule table of the numbers behind the bare word "P".
  Data::CEntList MapList(Data::CEntList const& list, CModule::ModuleId module,
                         CModule::ModuleId propertyModule) const;
  /// Text of a token with the new number, empty for a number that goes.
  /// @param module table of the token; becomes that of the next one. @param string place of the
  /// next quoted name; moves on when the token is one.
  CString MapWord(Data::CEntList const& list, int token, CModule::ModuleId& module, int& string,
                  CModule::ModuleId propertyModule) const;
  /// Text of a token as it is. MT, MG, MA, MF and M come out as their negative number.
  CString Word(Data::CEntList const& list, int token, int& string) const;
  /// Text of a number, with a blank behind it.
  CString String(int number) const;
  /// Writes out the ranges of a list of nodes, elements or members whose numbers do not all move by
  /// the same step.
  Data::CEntList ListPreconversion(Data::CEntList list) const;

  /// What finally stands in the place of a number.
  static std::vector<int> RenumberGetReplacement(int number,
                                                 std::map<int, std::vector<int>> const& map);

 private:
  struct Parts;

  CZelData& Model() const;
  /// The model before the run; without a run, as it is now.
  CZelData const& Before() const;

  std::unique_ptr<Parts> m_parts;
};

}  // namespace Tarvex
