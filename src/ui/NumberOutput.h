#pragma once

#include <string>

namespace tessarolyne {

class TextArea;
class TextField;

// A text area that speaks of the number in a field, and is dimmed while another one stands there.
class NumberOutput {
public:
    NumberOutput(TextArea& area, const TextField& number) : area_(area), field_(number) {}

    // `remark` is shown beside the text while it is of the number that stands there.
    void Write(const std::string& text, const std::string& remark = {});
    // Dims the text, or no longer, after a change of the number that leaves the text alone.
    void Compare();

private:
    // In the one form that doesn't depend on grouping and focus.
    std::string NumberShown() const;

    TextArea& area_;
    const TextField& field_;
    std::string number_;
    std::string remark_;
};

// Where an error stands for no other reason than the cents of the number, which the words can tell: what to
// say of it.
std::string OnlyCentsAreWrong(const TextField& number);

} // namespace tessarolyne
