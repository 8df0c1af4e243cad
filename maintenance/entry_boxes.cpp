#include "maintenance/entry_boxes.h"

namespace trv5 {

EntryBoxes::EntryBoxes(Form& form) : m_boxes(form, "txtin", range(1, kBoxes)) {}

}  // namespace trv5
