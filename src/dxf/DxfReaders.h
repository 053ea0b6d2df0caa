#pragma once

#include "dxf/DxfContext.h"
#include "dxf/DxfLines.h"
#include "model/Shapes.h"

/// Readers of one record each: entered behind the line with its keyword, left behind the code of
/// the next one. What they make goes to `target`.
namespace hullwright {

void ReadLine(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadPoint(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadArc(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadCircle(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadEllipse(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadSolid(DxfLines& lines, DxfContext& context, CShapes& target);
void Read3DFace(DxfLines& lines, DxfContext& context, CShapes& target);

// The records of a polyline; the one that ends it makes the shape.
void ReadPolyline(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadVertex(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadSeqEnd(DxfLines& lines, DxfContext& context, CShapes& target);

void ReadLwPolyline(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadText(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadMText(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadAttribute(DxfLines& lines, DxfContext& context, CShapes& target);
void ReadInsert(DxfLines& lines, DxfContext& context, CShapes& target);

}  // namespace hullwright
