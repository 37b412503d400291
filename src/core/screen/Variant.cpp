#include "Variant.h"

#include "../Numbers.h"

namespace vistrel {

double Variant::number() const
{
    switch (kind_) {
    case Kind::Empty:
        return 0;
    case Kind::String:
        return Val(text_);
    default:
        return number_;
    }
}

}  // namespace vistrel
