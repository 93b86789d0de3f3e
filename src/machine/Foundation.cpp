#include "machine/Foundation.h"

#include <dlfcn.h>

namespace tessarolyne {

namespace {

// The Objective-C runtime, which the library brings with it. Every message goes through one function that is
// called with the types of the message in question.
class Runtime {
public:
    explicit Runtime(const std::string& library)
        : library_(::dlopen(library.c_str(), RTLD_LAZY | RTLD_GLOBAL)),
          getClass_(Symbol<void* (*)(const char*)>("objc_getClass")),
          registerName_(Symbol<void* (*)(const char*)>("sel_registerName")), send_(Find("objc_msgSend")) {}

    bool IsThere() const { return getClass_ != nullptr && registerName_ != nullptr && send_ != nullptr; }

    // Nothing without the library.
    void* Find(const char* symbol) const { return library_ == nullptr ? nullptr : ::dlsym(library_, symbol); }

    template <class Result, class... Arguments>
    Result Send(void* receiver, const char* selector, Arguments... arguments) const {
        const auto send = reinterpret_cast<Result (*)(void*, void*, Arguments...)>(send_);
        return send(receiver, registerName_(selector), arguments...);
    }

    void* Class(const char* name) const { return getClass_(name); }

private:
    template <class Function>
    Function Symbol(const char* name) const {
        return reinterpret_cast<Function>(Find(name));
    }

    void* library_; // stays loaded: the values live in it
    void* (*getClass_)(const char*);
    void* (*registerName_)(const char*);
    void* send_;
};

} // namespace

bool Foundation::GetResourceValue(const std::string& url, const std::string& key, void*& value) const {
    const Runtime runtime(library_);
    // The symbol is the address of the constant, and the constant points at a string object.
    auto* const constant = static_cast<void**>(runtime.Find(key.c_str()));
    if (constant == nullptr || !runtime.IsThere()) {
        return false;
    }
    void* const text = runtime.Send<void*>(runtime.Class("NSString"), "stringWithUTF8String:", url.c_str());
    void* const address = runtime.Send<void*>(runtime.Class("NSURL"), "URLWithString:", text);
    void* found = nullptr;
    void* error = nullptr;
    const bool success =
        runtime.Send<signed char>(address, "getResourceValue:forKey:error:", &found, *constant, &error) != 0;
    value = success ? found : error;
    return success;
}

bool Foundation::BoolValue(void* number) const {
    const Runtime runtime(library_);
    return number != nullptr && runtime.IsThere() && runtime.Send<signed char>(number, "boolValue") != 0;
}

} // namespace tessarolyne
