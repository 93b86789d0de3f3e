#pragma once

#include "desktop/ControlView.h"
#include "platform/TextField.h"

#include <QString>

class QLineEdit;

namespace tessarolyne {

// A field as a line edit. Each edit of the user becomes one replacement in the model, whose text then stands;
// where that differs (a mask), the line is corrected so that undo still works. Of a text beyond the line's
// maximal length the beginning is shown, since Qt would lay out all of it at each key.
class FieldView final : public ControlView {
public:
    FieldView(TextField& model, QWidget* parent);

    void AboutToFocusByKey() override;

protected:
    void Read() override;

private:
    void ReadFont();
    QString Shown(const std::string& text) const;
    void ReadText();
    void ReadSelection();
    bool Inserted(const QString& text);
    void Edited();
    void EditedFromAside();
    void Selected();

    TextField& model_;
    QLineEdit* const edit_;
    bool correcting_ = false;
};

} // namespace tessarolyne
