#include "ui/StatusPanels.h"

#include <QLabel>

#include "ui/SessionWatch.h"

StatusPanels::StatusPanels(const SessionWatch& watch, QWidget* parent) : QStatusBar(parent), watch_(watch) {
    setObjectName("sbVorel");
    name_ = AddPanel("sbVorel_1", 1);
    connection_ = AddPanel("sbVorel_2", 1);
    reason_ = AddPanel("sbVorel_3", 3);
}

QLabel* StatusPanels::AddPanel(const char* name, int stretch) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    addPermanentWidget(label, stretch);
    return label;
}

void StatusPanels::ShowStatus() {
    name_->setText(watch_.BotName());
    connection_->setText(watch_.Connection());
    reason_->setText(watch_.HowItStands());
}

void StatusPanels::Remark(const QString& text) { reason_->setText(text); }
