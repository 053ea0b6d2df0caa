#include "app/Editor.h"

#include <new>

namespace hullwright {

Editor::Editor(const Ports& ports)
    : app({ports.settings, ports.messages, ports.dialogs, ports.fileDialogs, ports.units,
           ports.log}),
      frame(app, ports.widgets, ports.listener),
      document(app, frame, ports.messages),
      view(app, app, {ports.messages, ports.cursor, ports.rubberBand, ports.popupMenu}),
      objects(app, ports.tree)
{
  app.mainFrame = &frame;
  frame.document = &document;
  frame.view = &view;
  frame.objectView = &objects;
}

Editor::~Editor()
{
  // A part that is released must not be notified of the release of the next one.
  app.mainFrame = nullptr;
}

void Editor::Recover()
{
  view.dragging = false;  // the button may be up by now
  view.DropReleasedItems();
  try {
    objects.BuildTree();
    view.Repaint();
  } catch (const std::bad_alloc&) {
    // The tree lists less than there is, or the picture shows less, until the next change.
    return;
  }
}

}  // namespace hullwright
