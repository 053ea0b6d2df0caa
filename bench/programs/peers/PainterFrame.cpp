#include "peers/PainterFrame.h"

#include <QPainter>
#include <QPen>
#include <utility>

namespace hullwright::bench {

PainterFrame::PainterFrame(const CShapes& group, int width, int height)
    : picture_(width, height, QImage::Format_RGB32)
{
  ForEachEntry(group.shapes, [this](const CShape& shape) {
    QPolygonF outline;
    ForEachEntry(shape.vertices,
                 [&](const CShapeVertex& vertex) { outline.append(QPointF(vertex.x, vertex.y)); });
    outlines_.push_back(std::move(outline));
  });
}

void PainterFrame::Draw(const Extents& view, double penWidth)
{
  picture_.fill(Qt::white);
  QPainter painter(&picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(picture_.width() / (view.maxX - view.minX),
                -picture_.height() / (view.maxY - view.minY));
  painter.translate(-view.minX, -view.maxY);
  QPen pen(Qt::black, penWidth);
  pen.setCosmetic(true);
  painter.setPen(pen);
  for (const QPolygonF& outline : outlines_) painter.drawPolyline(outline);
}

}  // namespace hullwright::bench
