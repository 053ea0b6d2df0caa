// Prints the export of a design with colours and widths, which no design file holds, for the test
// of what other programs read: R12, R2000, geojson or csv.
#include <cstdio>
#include <string_view>

#include "exchange/CsvExport.h"
#include "exchange/DesignFixture.h"
#include "exchange/DxfExport.h"
#include "exchange/GeoJsonExport.h"

namespace hullwright::test {
namespace {

class ColouredDesign : private DesignFixture {
public:
  ColouredDesign()
  {
    RemoveOffsets();
    // Closed, open, and in space; 0x00BBGGRR.
    Style(AddLine(design, ViewSide::Top, {{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 0, 0}}), 0x0000FF,
          3.0F);
    Style(AddLine(design, ViewSide::Left, {{1, 1, 0}, {2, 2, 0}}), 0x123456, 1.0F);
    Style(AddLine(design, ViewSide::Rear, {{1, 1, 5}, {2, 2, 6}}), 0x00FF00, 2.5F);
    Style(AddLine(design, ViewSide::Rear, {{3, 1, 0}, {2, 2, 0}}), 0x000000, 7.0F);
  }

  std::string Export(std::string_view form) const
  {
    if (form == "geojson") return MakeGeoJson(Gather());
    if (form == "csv") return MakeCsv(Gather());
    return MakeDxf(Gather(), {form == "R12" ? DxfVersion::R12 : DxfVersion::R2000}).bytes;
  }
};

}  // namespace
}  // namespace hullwright::test

int main(int argc, char** argv)
{
  if (argc != 2) return 2;
  const std::string bytes = hullwright::test::ColouredDesign().Export(argv[1]);
  return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() ? 0 : 1;
}
