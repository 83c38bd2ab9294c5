#pragma once

#include <QObject>
#include <functional>

class QWidget;

/// Lets profiles and scripts be dropped anywhere on the program's windows; a text field would else take the file's
/// address for text.
class DocumentDrops final : public QObject {
  public:
    /// @param open  is called for every ".tvm" and ".vs" file of a drop, with its path
    DocumentDrops(QList<QWidget*> windows, std::function<void(const QString& path)> open);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QList<QWidget*> windows_;
    std::function<void(const QString& path)> open_;
};
