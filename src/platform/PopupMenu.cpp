#include "platform/PopupMenu.h"

#include <utility>

namespace tessarolyne {

void PopupMenu::AddRow(std::string text) {
    rows_.push_back(std::move(text));
    Changed();
}

void PopupMenu::DeleteAllRows() {
    rows_.clear();
    index_ = -1;
    Changed();
}

std::string PopupMenu::Text() const {
    return index_ < 0 ? std::string() : rows_[static_cast<std::size_t>(index_)];
}

void PopupMenu::Choose(int index) {
    if (index < -1 || index >= static_cast<int>(rows_.size())) {
        throw OutOfBoundsException("PopupMenu.ListIndex");
    }
    if (index != index_) {
        index_ = index;
        Changed();
        Change();
    }
}

} // namespace tessarolyne
