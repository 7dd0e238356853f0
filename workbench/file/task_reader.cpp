#include "workbench/file/task_reader.h"

#include <optional>

#include "store/record/task_slot.h"
#include "store/select/numbers.h"
#include "workbench/file/codecs.h"

namespace Tarvex::Workbench {
namespace {

using KeyReaders = std::span<FieldReader<JsonValue> const>;

/// A new task of a class with the readers of its fields.
struct NewTask {
  std::unique_ptr<Zel::CAnalysisTask> task;
  void* object = nullptr;  ///< the task as its own class, which the readers take
  KeyReaders readers;
};

/// The task is null for a name that no class has.
NewTask MakeTask(std::string_view className) {
  NewTask made;
  Zel::ForEachTaskClass([&]<class Task>(Task*) {
    static constexpr auto kReaders = MakeFieldReaders<JsonValue, Task>();
    if (className != Task::kClass) return;
    auto task = std::make_unique<Task>();
    made.object = task.get();
    made.readers = kReaders;
    made.task = std::move(task);
  });
  return made;
}

/// What stands before the fields.
struct Head {
  int number = 0;
  char const* place = nullptr;
  NewTask made;
};

constexpr std::array kHeadReaders{
    FieldReader<JsonValue>{"n", true,
                           [](JsonValue& in, void* target) {
                             auto& head = *static_cast<Head*>(target);
                             head.number = in.Whole(1, kHighestNumber);
                             head.place = in.Place();
                           }},
    FieldReader<JsonValue>{"class", true, [](JsonValue& in, void* target) {
                             auto& head = *static_cast<Head*>(target);
                             auto const name = in.String();
                             head.made = MakeTask(name);
                             if (head.made.task == nullptr)
                               in.Fail(Quoted(name) + " is no class of tasks");
                           }}};

}  // namespace

void TaskReader::Read(JsonValue& in) {
  Head head;
  KeyWalk<JsonValue> headWalk(kHeadReaders, &head);
  std::optional<KeyWalk<JsonValue>> fields;
  in.ForEachField([&](JsonKey const& key, JsonValue& value) {
    auto const name = key.Text();
    if (name == "n" || name == "class") return headWalk.Take(key, value);
    if (head.made.task == nullptr)
      key.Fail("expected key " + Quoted("class") + " before " + Quoted(name));
    if (!fields) fields.emplace(head.made.readers, head.made.object);
    fields->Take(key, value);
  });
  headWalk.Finish(in);
  m_number = head.number;
  m_place = head.place;
  m_task = std::move(head.made.task);
}

}  // namespace Tarvex::Workbench
