#include "ui/length_label.h"

#include <QLabel>
#include <QPalette>
#include <memory>

#include "state/app_state.h"

namespace zentrel::ui {

QLabel* MakeLengthLabel(View& v, QWidget* parent, std::size_t index) {
  state::FormModel& f = v.s.Form;
  auto* label =
      MakeLabel(parent, QString(), ("MetaTag_Length_Label_" + std::to_string(index)).c_str());
  label->setToolTip(QStringLiteral(
      "Characters, and the width a search result gives the text. Orange: wider than the "
      "checks' profile allows, so it is cut; blue: shorter than the profile asks."));
  const QPalette within = label->palette();
  struct Shown {
    std::string text;
    state::LengthLevel level = state::LengthLevel::Within;
    bool set = false;
  };
  auto shown = std::make_shared<Shown>();
  v.bind.Custom([] {},
                [label, within, shown, &f, index] {
                  const std::string& text = f.MetaTag_Length_Label[index];
                  const state::LengthLevel level = f.MetaTag_Length_Level[index];
                  if (shown->set && text == shown->text && level == shown->level)
                    return;
                  shown->set = true;
                  shown->text = text;
                  shown->level = level;
                  label->setText(QString::fromStdString(text));
                  QPalette palette = within;
                  if (level != state::LengthLevel::Within) {
                    palette.setColor(QPalette::WindowText, level == state::LengthLevel::Over
                                                               ? kOverColour
                                                               : kUnderColour);
                  }
                  label->setPalette(palette);
                });
  return label;
}

}  // namespace zentrel::ui
