#pragma once

#include <QWidget>

#include "core/controls.h"
#include "screens/kit/kit.h"

class QSettings;

namespace trv5 {

/// The widget of a screen: a layout of what its form holds. Its objectName is the form's name, its title the form's.
class Screen : public QWidget {
  Q_OBJECT
 public:
  explicit Screen(Form& form, QWidget* parent = nullptr);
  ~Screen() override;

  Form& form() const { return m_form; }

  /// Splitters and the like, from one run to the next.
  virtual void restore(const QSettings& settings);
  virtual void store(QSettings& settings) const;
  /// What stands above a printed grid of this screen: its name, and how its contents came to be.
  virtual std::vector<std::string> printHeader(const GridControl& grid) const;

 Q_SIGNALS:
  /// sizeHint() tells another size, which a small screen takes unless the user has given it one.
  void naturalSizeChanged();

 protected:
  Kit kit;

 private:
  Form& m_form;
};

}  // namespace trv5
