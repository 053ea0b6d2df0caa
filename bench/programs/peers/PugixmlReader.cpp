#include <pugixml.hpp>

#include "peers/XmlReaders.h"

namespace hullwright::bench {

std::size_t ReadWithPugixml(const std::string& path)
{
  pugi::xml_document document;
  if (!document.load_file(path.c_str())) return 0;
  std::size_t count = 0;
  struct Counting : pugi::xml_tree_walker {
    explicit Counting(std::size_t& sum) : count(sum) {}
    bool for_each(pugi::xml_node&) override
    {
      ++count;
      return true;
    }
    std::size_t& count;
  } counting(count);
  document.traverse(counting);
  return count;
}

}  // namespace hullwright::bench
