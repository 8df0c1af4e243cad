#pragma once

#include <array>
#include <optional>

#include "core/archive.h"
#include "core/controls.h"
#include "core/program.h"

namespace trv5 {

/// The mini draw list: two draws side by side, to be looked at together. Numbers of the left one are marked by hand,
/// those of the right one by the case list of the workbench. It changes nothing in the archive.
class MiniList : public Form {
 public:
  static constexpr int kHelpContext = 0;

  explicit MiniList(Program& program);
  MiniList(const Archive& archive, Shell& shell);

  const Archive& archive;

  // Left panel: index, date, progressives; wheels are the rows 1..11 of the grid, positions its columns 1..5.
  Scroll hs1;
  Label Label2, Label1, Label3;
  GridControl fG2;
  Button Command81;
  // Right panel, of the same shape.
  Scroll Hs2;
  Label Label5, Label6, Label4;
  GridControl fG3;
  Button Command1;
  // They act on the left panel.
  Button Command56;
  ControlArray<Button> Command42;  ///< 0 by index, 1 by date

  /// Run once when the screen is made: both panels show the last draw.
  void load();
};

/// Change of `hs1`: the left panel shows that draw, without marks. The right panel stays as it is.
void MostraEstrazioneSinistra(MiniList& list);

/// Change of `Hs2`: the same on the right.
void MostraEstrazioneDestra(MiniList& list);

/// After a reload of the archive: both scroll bars end at the last draw, and both panels are written anew; marks stay
/// on a draw that is still there.
void SegueArchivio(MiniList& list);

/// Click on a number of the left panel: marks it in green, or takes the mark away. Codes of wheels take none.
void SegnaNumero(MiniList& list, int row, int column);

/// A draw to be looked at, with the positions 1..5 of one wheel to be marked.
struct MarkedDraw {
  int draw = 0;
  int wheel = 0;  ///< 0..10
  std::array<bool, kPositions + 1> positions{};
};

/// Both panels as a case wants them: the draw of its first element at the left, that of its second, where it has one,
/// at the right, and no other marks than theirs.
void MostraElementi(MiniList& list, const MarkedDraw& first, const std::optional<MarkedDraw>& second);

/// "Ricerca per numero indice": `hs1` by the index of a draw, from 1 on.
void CercaPerIndice(MiniList& list);

/// "Cerca estrazione per data": `hs1` by a date of the model archive.
void CercaPerData(MiniList& list);

}  // namespace trv5
