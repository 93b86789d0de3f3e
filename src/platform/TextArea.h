#pragma once

#include "platform/TextControl.h"

#include <vector>

namespace tessarolyne {

// A stretch of a styled text, in characters.
struct TextStyle {
    int Start = 0;
    int Length = 0;
    bool Bold = false;
    bool Underline = false;
    int TextSize = 0; // points; 0 is the area's own

    bool operator==(const TextStyle&) const = default;
};

// Several lines of text with a vertical scroll bar. Line breaks are CR, LF or both.
class TextArea final : public TextControl {
public:
    using TextControl::TextControl;

    // Styles of the selection, as they were set; a new Text starts without any.
    void SetSelBold(bool bold) { StyleOfSelection().Bold = bold, Changed(); }
    void SetSelUnderline(bool underline) { StyleOfSelection().Underline = underline, Changed(); }
    void SetSelTextSize(int size) { StyleOfSelection().TextSize = size, Changed(); }
    const std::vector<TextStyle>& Styles() const { return styles_; }

    // Into how many columns tab stops divide the area's width, the text behind each tab ending at its stop; 0
    // is the platform's own way.
    Property<int> TabColumns{*this, 0};

protected:
    void PropertyChanged(const void* property) override {
        if (property == &Text) {
            styles_.clear();
        }
        TextControl::PropertyChanged(property);
    }

private:
    TextStyle& StyleOfSelection() {
        for (TextStyle& style : styles_) {
            if (style.Start == SelStart() && style.Length == SelLength()) {
                return style;
            }
        }
        return styles_.emplace_back(TextStyle{SelStart, SelLength, false, false, 0});
    }

    std::vector<TextStyle> styles_;
};

} // namespace tessarolyne
