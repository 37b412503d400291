#pragma once

#include <string>

namespace vistrel {

// A variable that holds a number, a string or a Boolean, or nothing yet.
class Variant {
public:
    enum class Kind { Empty, Boolean, Number, String };

    Variant() = default;
    Variant(double number) : kind_(Kind::Number), number_(number) {}
    Variant(int number) : kind_(Kind::Number), number_(number) {}
    Variant(std::string text) : kind_(Kind::String), text_(std::move(text)) {}
    Variant(const char* text) : kind_(Kind::String), text_(text) {}
    static Variant boolean(bool value)
    {
        Variant v;
        v.kind_ = Kind::Boolean;
        v.number_ = value ? -1 : 0;
        return v;
    }

    Kind kind() const { return kind_; }
    bool isEmpty() const { return kind_ == Kind::Empty; }
    // The numeric reading: empty is 0, a string reads by its leading number.
    double number() const;
    const std::string& string() const { return text_; }

private:
    Kind kind_ = Kind::Empty;
    double number_ = 0;
    std::string text_;
};

}  // namespace vistrel
