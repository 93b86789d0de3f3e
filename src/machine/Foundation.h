#pragma once

#include <string>

namespace tessarolyne {

// The system's Foundation library, reached by name when it is asked, so that the program needs it neither to
// build nor to start. Where the library isn't, as on Linux, every answer is false.
class Foundation {
public:
    explicit Foundation(std::string library = "/System/Library/Frameworks/Foundation.framework/Foundation")
        : library_(std::move(library)) {}

    // The resource value of the item at the URL under the key constant of that name. With the result false
    // `value` is Foundation's error object, if the question came as far as that.
    bool GetResourceValue(const std::string& url, const std::string& key, void*& value) const;
    // An NSNumber's boolValue; false for none.
    bool BoolValue(void* number) const;

private:
    std::string library_;
};

} // namespace tessarolyne
