// The commands of the quilon tool, one function each.
#pragma once

#include <string>
#include <vector>

namespace Quilon_::Tool {

using Arguments = std::vector<std::string>;

// Prints the library version and the initialisation state.
int Version(const Arguments& arguments);
// Registers implementations on an operator of its own and calls it, to show
// one call going through the frame end to end.
int Demo(const Arguments& arguments);

} // namespace Quilon_::Tool
