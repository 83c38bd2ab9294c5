#include "ui/VariableList.h"

#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include "bot/UserVariables.h"
#include "ui/ShownText.h"

namespace {
constexpr int kRefreshMs = 250;  // a script may change them a thousand times a second, and nobody reads as fast
constexpr int kNameRole = Qt::UserRole;
}  // namespace

VariableList::VariableList(UserVariables& variables, QWidget* parent) : QTreeWidget(parent), variables_(variables) {
    setObjectName("lvwVars");
    setHeaderLabels({"Variable", "Value"});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    header()->setStretchLastSection(true);
    setAccessibleName(tr("Variables"));
    setAccessibleDescription(tr("The script's variables; F2 changes the value or the name that is chosen"));
    connect(this, &QTreeWidget::itemChanged, this, &VariableList::TakeOver);
    connect(&refresh_, &QTimer::timeout, this, &VariableList::Refresh);
    refresh_.start(kRefreshMs);
    Refresh();
}

void VariableList::Refresh() {
    // Not under the user's hands, and not for nothing.
    if (state() == QAbstractItemView::EditingState || (shown_ == variables_.Revision() && shown_ != 0)) return;
    refreshing_ = true;  // Qt tells of items that change here as of those that the user changes
    const auto& rows = variables_.Rows();
    while (topLevelItemCount() > static_cast<int>(rows.size())) delete takeTopLevelItem(topLevelItemCount() - 1);
    int i = 0;
    for (const auto& [rank, row] : rows) {
        if (i == topLevelItemCount()) {
            auto* const item = new QTreeWidgetItem(this);
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        }
        QTreeWidgetItem* const item = topLevelItem(i++);
        if (item->text(0) != Shown(row.name)) item->setText(0, Shown(row.name));
        if (item->text(1) != Shown(row.value)) item->setText(1, Shown(row.value));
        item->setData(0, kNameRole, Shown(row.name));
    }
    shown_ = variables_.Revision();
    refreshing_ = false;
}

void VariableList::TakeOver(QTreeWidgetItem* item, int column) {
    if (refreshing_) return;
    const std::string before = Typed(item->data(0, kNameRole).toString());
    // Only what was typed counts: the script may have changed the other column meanwhile.
    if (column == 1) {
        variables_.Set(before, Typed(item->text(1)));
    } else if (!item->text(0).isEmpty()) {
        variables_.Rename(before, BracketedName(Typed(item->text(0))));
    }
    shown_ = 0;  // shows them anew even where nothing has changed, as after an empty name
}

void VariableList::AddRow() {
    int number = 1;
    while (variables_.Find("[variable" + std::to_string(number) + "]")) ++number;
    variables_.Set("[variable" + std::to_string(number) + "]", "0");
    Refresh();
    setCurrentItem(topLevelItem(topLevelItemCount() - 1));
    editItem(currentItem(), 0);
}

void VariableList::RemoveRow() {
    if (!currentItem()) return;
    variables_.Remove(Typed(currentItem()->data(0, kNameRole).toString()));
    Refresh();
}

VariableFrame::VariableFrame(UserVariables& variables, QWidget* parent) : QGroupBox(tr("Variables"), parent) {
    auto* const layout = new QVBoxLayout(this);
    auto* const lvwVars = new VariableList(variables);
    layout->addWidget(lvwVars, 1);
    auto* const buttons = new QHBoxLayout;
    auto* const cmdAddVar = new QPushButton(tr("&Add"));
    auto* const cmdDelVar = new QPushButton(tr("Remo&ve"));
    cmdAddVar->setObjectName("cmdAdd_Var");
    cmdDelVar->setObjectName("cmdDel_Var");
    cmdAddVar->setAccessibleDescription(tr("Adds a variable"));
    cmdDelVar->setAccessibleDescription(tr("Removes the chosen variable"));
    buttons->addWidget(cmdAddVar);
    buttons->addWidget(cmdDelVar);
    buttons->addStretch();
    layout->addLayout(buttons);
    connect(cmdAddVar, &QPushButton::clicked, lvwVars, &VariableList::AddRow);
    connect(cmdDelVar, &QPushButton::clicked, lvwVars, &VariableList::RemoveRow);
}
