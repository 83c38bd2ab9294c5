#pragma once

#include "ui/UpdateCheck.h"

class Dialogs;

/// Offers a newer version to the user, and saves its archive where the user wants it.
class UpdateOffer final : public QObject {
    Q_OBJECT

  public:
    UpdateOffer(Dialogs& dialogs, QWidget* window);

    void Look() { check_.Look(); }

  signals:
    /// What has become of the archive.
    void Told(const QString& line);

  private:
    Dialogs& dialogs_;
    QWidget* window_;
    UpdateCheck check_;

    void Offer(const QString& version, const QString& text);
};
