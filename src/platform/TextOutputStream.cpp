#include "platform/TextOutputStream.h"

namespace tessarolyne {

TextOutputStream TextOutputStream::Create(const FolderItem& item, LinkPolicy links) {
    return TextOutputStream(item.Files().CreateSafely(item.NativePath(), links));
}

} // namespace tessarolyne
