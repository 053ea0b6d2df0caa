#include "exchange/DxfRecords.h"

// Programs refuse a drawing of R2000 in which one of these tables, blocks or objects is missing, or
// in which a handle points nowhere: 5 is a record's own, 330 its owner's.
namespace hullwright::DxfRecords {

const std::string_view classesToViewports =
    R"(0 SECTION|2 CLASSES
0 CLASS|1 ACDBDICTIONARYWDFLT|2 AcDbDictionaryWithDefault|3 ObjectDBX Classes|90 0|280 0|281 0
0 CLASS|1 ACDBPLACEHOLDER|2 AcDbPlaceHolder|3 ObjectDBX Classes|90 0|280 0|281 0
0 CLASS|1 LAYOUT|2 AcDbLayout|3 ObjectDBX Classes|90 0|280 0|281 0
0 ENDSEC
0 SECTION|2 TABLES
0 TABLE|2 VPORT|5 8|330 0|100 AcDbSymbolTable|70 1)";

const std::string_view linetypesToLayers =
    R"(0 ENDTAB
0 TABLE|2 LTYPE|5 2|330 0|100 AcDbSymbolTable|70 3
0 LTYPE|5 24|330 2|100 AcDbSymbolTableRecord|100 AcDbLinetypeTableRecord|2 ByBlock|70 0|3 |72 65|73 0|40 0.0
0 LTYPE|5 25|330 2|100 AcDbSymbolTableRecord|100 AcDbLinetypeTableRecord|2 ByLayer|70 0|3 |72 65|73 0|40 0.0
0 LTYPE|5 26|330 2|100 AcDbSymbolTableRecord|100 AcDbLinetypeTableRecord|2 Continuous|70 0|3 Solid line|72 65|73 0|40 0.0
0 ENDTAB)";

const std::string_view stylesToBlocks =
    R"(0 ENDTAB
0 TABLE|2 STYLE|5 5|330 0|100 AcDbSymbolTable|70 1
0 STYLE|5 29|330 5|100 AcDbSymbolTableRecord|100 AcDbTextStyleTableRecord|2 Standard|70 0|40 0.0|41 1.0|50 0.0|71 0|42 2.5|3 txt|4 
0 ENDTAB
0 TABLE|2 VIEW|5 7|330 0|100 AcDbSymbolTable|70 0
0 ENDTAB
0 TABLE|2 UCS|5 6|330 0|100 AcDbSymbolTable|70 0
0 ENDTAB
0 TABLE|2 APPID|5 3|330 0|100 AcDbSymbolTable|70 1
0 APPID|5 2A|330 3|100 AcDbSymbolTableRecord|100 AcDbRegAppTableRecord|2 ACAD|70 0
0 ENDTAB
0 TABLE|2 DIMSTYLE|5 4|330 0|100 AcDbSymbolTable|70 1|100 AcDbDimStyleTable|71 1
0 DIMSTYLE|105 2B|330 4|100 AcDbSymbolTableRecord|100 AcDbDimStyleTableRecord|2 Standard|70 0|340 29
0 ENDTAB
0 TABLE|2 BLOCK_RECORD|5 9|330 0|100 AcDbSymbolTable|70 2
0 BLOCK_RECORD|5 17|330 9|100 AcDbSymbolTableRecord|100 AcDbBlockTableRecord|2 *Model_Space|340 1A
0 BLOCK_RECORD|5 1B|330 9|100 AcDbSymbolTableRecord|100 AcDbBlockTableRecord|2 *Paper_Space|340 1E
0 ENDTAB
0 ENDSEC
0 SECTION|2 BLOCKS
0 BLOCK|5 18|330 17|100 AcDbEntity|8 0|100 AcDbBlockBegin|2 *Model_Space|70 0|10 0.0|20 0.0|30 0.0|3 *Model_Space|1 
0 ENDBLK|5 19|330 17|100 AcDbEntity|8 0|100 AcDbBlockEnd
0 BLOCK|5 1C|330 1B|100 AcDbEntity|67 1|8 0|100 AcDbBlockBegin|2 *Paper_Space|70 0|10 0.0|20 0.0|30 0.0|3 *Paper_Space|1 
0 ENDBLK|5 1D|330 1B|100 AcDbEntity|67 1|8 0|100 AcDbBlockEnd
0 ENDSEC
0 SECTION|2 ENTITIES)";

const std::string_view objects =
    R"(0 ENDSEC
0 SECTION|2 OBJECTS
0 DICTIONARY|5 A|330 0|100 AcDbDictionary|281 1|3 ACAD_GROUP|350 C|3 ACAD_LAYOUT|350 D|3 ACAD_MLINESTYLE|350 10|3 ACAD_PLOTSETTINGS|350 11|3 ACAD_PLOTSTYLENAME|350 12
0 DICTIONARY|5 C|330 A|100 AcDbDictionary|281 1
0 DICTIONARY|5 D|330 A|100 AcDbDictionary|281 1|3 Model|350 1A|3 Layout1|350 1E
0 DICTIONARY|5 10|330 A|100 AcDbDictionary|281 1|3 Standard|350 22
0 DICTIONARY|5 11|330 A|100 AcDbDictionary|281 1
0 ACDBDICTIONARYWDFLT|5 12|330 A|100 AcDbDictionary|281 1|3 Normal|350 13|100 AcDbDictionaryWithDefault|340 13
0 ACDBPLACEHOLDER|5 13|330 12
0 LAYOUT|5 1A|330 D|100 AcDbPlotSettings|1 |2 none_device|4 |6 |40 0.0|41 0.0|42 0.0|43 0.0|44 0.0|45 0.0|46 0.0|47 0.0|48 0.0|49 0.0|140 0.0|141 0.0|142 1.0|143 1.0|70 1024|72 1|73 0|74 0|7 |75 0|147 1.0|148 0.0|149 0.0|100 AcDbLayout|1 Model|70 1|71 0|10 0.0|20 0.0|11 420.0|21 297.0|12 0.0|22 0.0|32 0.0|14 0.0|24 0.0|34 0.0|15 0.0|25 0.0|35 0.0|146 0.0|13 0.0|23 0.0|33 0.0|16 1.0|26 0.0|36 0.0|17 0.0|27 1.0|37 0.0|76 0|330 17
0 LAYOUT|5 1E|330 D|100 AcDbPlotSettings|1 |2 none_device|4 |6 |40 0.0|41 0.0|42 0.0|43 0.0|44 0.0|45 0.0|46 0.0|47 0.0|48 0.0|49 0.0|140 0.0|141 0.0|142 1.0|143 1.0|70 688|72 0|73 0|74 5|7 |75 16|147 1.0|148 0.0|149 0.0|100 AcDbLayout|1 Layout1|70 1|71 1|10 0.0|20 0.0|11 420.0|21 297.0|12 0.0|22 0.0|32 0.0|14 0.0|24 0.0|34 0.0|15 0.0|25 0.0|35 0.0|146 0.0|13 0.0|23 0.0|33 0.0|16 1.0|26 0.0|36 0.0|17 0.0|27 1.0|37 0.0|76 0|330 1B
0 MLINESTYLE|5 22|330 10|100 AcDbMlineStyle|2 STANDARD|70 0|3 |62 256|51 90.0|52 90.0|71 2|49 0.5|62 256|6 BYLAYER|49 -0.5|62 256|6 BYLAYER
0 ENDSEC
0 EOF)";

const std::string_view linetypesToLayersR12 =
    R"(0 SECTION|2 TABLES
0 TABLE|2 LTYPE|70 1
0 LTYPE|2 CONTINUOUS|70 0|3 Solid line|72 65|73 0|40 0.0
0 ENDTAB)";

const std::string_view stylesToBlocksR12 =
    R"(0 ENDTAB
0 TABLE|2 STYLE|70 1
0 STYLE|2 STANDARD|70 0|40 0.0|41 1.0|50 0.0|71 0|42 2.5|3 txt|4 
0 ENDTAB
0 ENDSEC
0 SECTION|2 BLOCKS
0 ENDSEC
0 SECTION|2 ENTITIES)";

}  // namespace hullwright::DxfRecords
