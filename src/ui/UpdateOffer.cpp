#include "ui/UpdateOffer.h"

#include "Version.h"
#include "ui/Dialogs.h"

UpdateOffer::UpdateOffer(Dialogs& dialogs, QWidget* window)
    : dialogs_(dialogs), window_(window), check_(QUrl(QString(kUpdateServer))) {
    connect(&check_, &UpdateCheck::NewerFound, this, &UpdateOffer::Offer);
    connect(&check_, &UpdateCheck::ArchiveDone, this, [this](const QString& why) {
        emit Told(why.isEmpty() ? tr("The new version has been saved.")
                                : tr("The new version was not saved: %1").arg(why));
    });
}

void UpdateOffer::Offer(const QString& version, const QString& text) {
    const QString question = tr("Version %1 is there:\n\n%2\n\nSave it to a place of your choice?").arg(version, text);
    if (dialogs_.Ask(window_, question, kProductName) != Dialogs::Answer::Yes) return;
    const auto file = dialogs_.AskSaveFile(window_, tr("Save the new version"), tr("Archive (*.zip) | *.zip"), {});
    if (file) check_.FetchArchive(*file);
}
