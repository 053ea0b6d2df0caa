#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <string>
#include <vector>

#include "model/Shape.h"
#include "model/ShapeVertex.h"

// Reading the members of a script's lines.
namespace hullwright::replay {

/// A text as 16-bit units.
std::u16string WideOf(const QJsonValue& value);

/// A text as its bytes, one for each character up to U+00FF.
std::string BytesOf(const QJsonValue& value);

/// A number; "inf", "-inf" and "nan" as texts.
double NumberOf(const QJsonValue& value);

/// A vertex of three numbers, or of six with its carried fields.
CShapeVertex VertexOf(const QJsonValue& value);

/// A shape with all that the script says of it.
std::unique_ptr<CShape> ShapeOf(const QJsonObject& object);

}  // namespace hullwright::replay
