#include "ui/DocumentDrops.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include "ui/Documents.h"
#include "ui/ShownText.h"

namespace {

QStringList DocumentsIn(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        const QString path = url.toLocalFile();  // empty for what lies elsewhere
        if (DocumentKind(TypedPath(path))) paths << path;
    }
    return paths;
}

}  // namespace

DocumentDrops::DocumentDrops(QList<QWidget*> windows, std::function<void(const QString& path)> open)
    : windows_(std::move(windows)), open_(std::move(open)) {
    for (QWidget* const window : windows_) window->setAcceptDrops(true);
    // Before the fields in the windows, which accept drops of text.
    QCoreApplication::instance()->installEventFilter(this);
}

bool DocumentDrops::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) return false;
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (!widget || !windows_.contains(widget->window())) return false;
    auto* const drop = static_cast<QDropEvent*>(event);
    const QStringList documents = DocumentsIn(*drop->mimeData());
    if (documents.isEmpty()) return false;
    drop->setDropAction(Qt::CopyAction);  // a file that was moved here would be gone from its place
    drop->accept();
    if (type == QEvent::Drop) {
        for (const QString& path : documents) open_(path);
    }
    return true;
}
