#pragma once

#include <cstddef>
#include <string>

/// XML parsers that the opening of a design is compared with. Each gives the number of elements
/// that it came across; 0 for a file that is not well-formed.
namespace hullwright::bench {

/// Expat alone: the whole file, with callbacks that keep nothing.
std::size_t ReadWithExpat(const std::string& path);

/// pugixml: the whole file as a tree.
std::size_t ReadWithPugixml(const std::string& path);

}  // namespace hullwright::bench
