#pragma once

#include <initializer_list>
#include <map>
#include <memory>
#include <string>

namespace trv5 {

class Form;

/// The indices from `first` to `last`, both included.
struct IndexRange {
  int first, last;
};
inline IndexRange range(int first, int last) {
  return {first, last};
}

/// A control array: members found by their given index, named "Name_index".
template <class Kind>
class ControlArray {
 public:
  /// Makes one member for each index, handing `arguments` behind the name to each.
  template <class... Arguments>
  ControlArray(Form& form, const std::string& name, std::initializer_list<int> indices, const Arguments&... arguments) {
    for (const int i : indices) add(form, name, i, arguments...);
  }
  template <class... Arguments>
  ControlArray(Form& form, const std::string& name, IndexRange indices, const Arguments&... arguments) {
    for (int i = indices.first; i <= indices.last; ++i) add(form, name, i, arguments...);
  }
  Kind& operator[](int index) const { return *m_members.at(index); }
  auto begin() const { return m_members.begin(); }
  auto end() const { return m_members.end(); }

 private:
  template <class... Arguments>
  void add(Form& form, const std::string& name, int i, const Arguments&... arguments) {
    m_members[i] = std::make_unique<Kind>(form, name + "_" + std::to_string(i), arguments...);
  }

  std::map<int, std::unique_ptr<Kind>> m_members;
};

}  // namespace trv5
