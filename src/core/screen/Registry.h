#pragma once

#include "Variant.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vistrel {

// How a named variable or table of a screen is read and written from
// outside: by the script driver and by the window program.
struct VarBinding {
    std::function<Variant(int index)> get;
    std::function<void(int index, const std::string& text)> set;
    bool table = false;
    int first = 0;  // lowest index of a table, as the prose writes it
    int last = -1;

    bool validIndex(int index) const { return table ? index >= first && index <= last : index < 0; }
};

// Builds bindings for the station's variable types.
namespace bind {
VarBinding scalar(bool& v);
VarBinding scalar(std::int16_t& v);
VarBinding scalar(std::int32_t& v);
VarBinding scalar(double& v);
VarBinding scalar(std::string& v);
VarBinding scalar(Variant& v);
VarBinding scalar(std::optional<double>& v);

// Row i of the prose is element i - first of the vector.
VarBinding table(std::vector<bool>& t, int first);
VarBinding table(std::vector<std::int16_t>& t, int first);
VarBinding table(std::vector<std::int32_t>& t, int first);
VarBinding table(std::vector<double>& t, int first);
VarBinding table(std::vector<std::string>& t, int first);
VarBinding table(std::vector<Variant>& t, int first);
// A table of numbers whose rows read as empty until they are written.
VarBinding table(std::vector<double>& t, std::vector<bool>& written, int first);
}  // namespace bind

// The text a printed value gets: Booleans True/False, numbers shortest,
// strings as they are, empty as nothing.
std::string printedValue(const Variant& value);

}  // namespace vistrel
