#pragma once

#include "assets/DragPreparation.h"
#include "document/BrandDocument.h"
#include "workspace/WorkspaceServices.h"
#include "workspace/selection/GroupOperations.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

class QQuickItem;

namespace tarnloft {

// What the toolbar of the selected tiles tells and does. All follows the selection and the
// document. Main thread.
class SelectionActions : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a workspace")
  Q_PROPERTY(int count READ count NOTIFY changed)
  // Items among them that have a file to hand out.
  Q_PROPERTY(int exportableCount READ exportableCount NOTIFY changed)
  Q_PROPERTY(bool canGroupAsLogo READ canGroupAsLogo NOTIFY changed)
  // The names of the sections that they can be moved to, to stand in a menu; none if they are too
  // many for one.
  Q_PROPERTY(QStringList targets READ targets NOTIFY changed)
  Q_PROPERTY(bool hasManyTargets READ hasManyTargets NOTIFY changed)

 public:
  // All is borrowed and outlives it, but for the document.
  SelectionActions(BrandDocument& document, const WindowParts& window,
                   const WorkspaceServices& services);

  int count() const { return facts_.count; }
  int exportableCount() const { return facts_.exportable; }
  bool canGroupAsLogo() const { return facts_.canGroup; }
  const QStringList& targets() const { return facts_.targets; }
  bool hasManyTargets() const { return facts_.hasManyTargets; }

  // Selects the tiles of the selected section, else of the first one that has any.
  Q_INVOKABLE void selectAll();
  Q_INVOKABLE void clear();

  // Each is one undoable step, and leaves nothing selected.
  Q_INVOKABLE void groupAsLogo();
  Q_INVOKABLE void duplicate();
  // `target` counts among `targets`.
  Q_INVOKABLE void moveTo(int target);
  // Asks for one of all sections.
  Q_INVOKABLE void askTarget();
  Q_INVOKABLE void remove();

  // Drags all files out, under their clients' names; returns when the drag has ended. `view` is
  // what was grabbed.
  Q_INVOKABLE void drag(QQuickItem* view, const QImage& grabbed, qreal radius);

 signals:
  void changed();

 private:
  struct Facts {
    int count = 0;
    int exportable = 0;
    bool canGroup = false;
    bool hasManyTargets = false;
    QStringList targets;
    QList<QUuid> targetIDs;

    bool operator==(const Facts&) const = default;
  };

  void refreshSoon();
  void refresh();
  Facts facts() const;
  void findTargets(QStringList& names, QList<QUuid>& ids) const;
  GroupOperations operations() const;

  const QPointer<BrandDocument> document_;
  const WindowParts window_;
  const WorkspaceServices services_;
  Facts facts_;
  bool isRefreshDue_ = false;
  DragPreparation dragPreparation_{services_.dragThreads};
};

}  // namespace tarnloft
