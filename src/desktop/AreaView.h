#pragma once

#include "desktop/ControlView.h"
#include "platform/TextArea.h"

#include <QString>

#include <vector>

namespace tessarolyne {

class PlainEdit;

// An area as a plain text edit: carriage returns are line breaks, Tab leaves it, and a read-only one can
// still be walked through, selected and copied by keyboard.
class AreaView final : public ControlView {
public:
    AreaView(TextArea& model, QWidget* parent);

protected:
    void Read() override;

private:
    void ReadStyles();
    int RoomForColumns() const;
    void ReadColumns(const QString& text);
    void ReadSelection();
    void Edited();
    void Selected();

    TextArea& model_;
    PlainEdit* const edit_;
    QString shown_;
    int columnsWidth_ = 0; // what the tab stops fit
    std::vector<TextStyle> styles_;
};

} // namespace tessarolyne
