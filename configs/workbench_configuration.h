#pragma once

#include <span>

#include "cases/workbench.h"
#include "configs/configuration.h"

namespace trv5 {

/// When a reload writes a field back.
enum class ReloadStep { Values, Marks, RowCounts };

/// A field of `Elenco_Memo` and the control that it keeps. One list serves save, reload and import: a control that is
/// to be kept too is one row more, and a column of the table.
struct ConfigurationField {
  std::string_view name;
  ReloadStep step;
  bool isNumber;
  FieldValue (*read)(const Workbench& w);
  /// Fires what a user's change would fire, where the value changes. Throws UserError for a value that the control
  /// can't take.
  void (*write)(Workbench& w, const FieldValue& value);
};

/// In the order in which a reload writes them.
std::span<const ConfigurationField> configurationFields();

/// Their names.
std::vector<std::string_view> configurationFieldNames();

/// The workbench as a configuration: the fields above and the rows of the four formula tables.
Configuration captureConfiguration(const Workbench& w);

/// Writes the fields of one step.
void layFields(Workbench& w, const std::vector<Field>& head, ReloadStep step);

/// Writes the stored rows into the formula tables, each at its place; a place that no row has stays empty. Throws
/// UserError for a place outside its table.
void layRows(Workbench& w, const std::vector<ConfigurationRow>& rows);

}  // namespace trv5
