#pragma once

#include "platform/Control.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace tessarolyne {

// An index that a control doesn't have.
class OutOfBoundsException final : public std::out_of_range {
public:
    using std::out_of_range::out_of_range;
};

// A choice of one row among several. Change comes whenever ListIndex changes, by the user or by code. -1 is
// no row; an index beyond the rows is refused with OutOfBoundsException.
class PopupMenu final : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    // Rows are added at the end; without rows none is chosen. Neither gives Change.
    void AddRow(std::string text);
    void DeleteAllRows();
    const std::vector<std::string>& Rows() const { return rows_; }
    // The text of the chosen row, or nothing.
    std::string Text() const;

    void UserChose(int index) {
        if (TakesInput()) {
            ListIndex = index;
        }
    }

    // The chosen row, assigned and read by its name.
    class IndexProperty {
    public:
        explicit IndexProperty(PopupMenu& menu) : menu_(menu) {}
        IndexProperty(const IndexProperty&) = delete;
        IndexProperty& operator=(int index) {
            menu_.Choose(index);
            return *this;
        }
        operator int() const { return menu_.index_; }
        int operator()() const { return menu_.index_; }

    private:
        PopupMenu& menu_;
    };

    IndexProperty ListIndex{*this};

    Event<void()> Change;

private:
    void Choose(int index);

    std::vector<std::string> rows_;
    int index_ = -1;
};

} // namespace tessarolyne
