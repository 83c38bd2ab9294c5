#include "ui/CommandTree.h"

#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/CommandList.h"
#include "ui/ShownText.h"

namespace {

// As many, and in the same order, as CommandRoot has roots.
constexpr char kRootCaptions[][24] = {"Causes", "Additional Conditions", "Effects"};

/// The roots have no parent, the commands one of them.
bool IsCommand(const QTreeWidgetItem* item) { return item && item->parent(); }

}  // namespace

CommandTree::CommandTree(QWidget* parent)
    : QWidget(parent), tvwCmds_(new QTreeWidget), txtFilter_(new QLineEdit), lblPreview_(new QLabel) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    txtFilter_->setObjectName("txtFilter");
    txtFilter_->setPlaceholderText(tr("Show commands with these words"));
    txtFilter_->setClearButtonEnabled(true);
    txtFilter_->setAccessibleName(tr("Filter of the commands"));
    txtFilter_->setAccessibleDescription(tr("Shows only the commands that hold all of these words"));
    auto* const label = new QLabel(tr("Fi&lter:"));
    label->setBuddy(txtFilter_);
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(txtFilter_, 1);
    layout->addLayout(row);

    tvwCmds_->setObjectName("tvwCmds");
    tvwCmds_->setHeaderHidden(true);
    tvwCmds_->setUniformRowHeights(true);
    tvwCmds_->setAccessibleName(tr("Commands"));
    tvwCmds_->setAccessibleDescription(tr("Enter or a double click puts the chosen command into the script"));
    for (const auto* const caption : kRootCaptions) new QTreeWidgetItem(tvwCmds_, {QString(caption)});
    layout->addWidget(tvwCmds_, 1);

    lblPreview_->setObjectName("lblPreview");
    lblPreview_->setWordWrap(true);
    lblPreview_->setTextFormat(Qt::PlainText);
    lblPreview_->setMinimumHeight(lblPreview_->fontMetrics().lineSpacing() * 9);
    lblPreview_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    lblPreview_->setAccessibleName(tr("The chosen command"));
    layout->addWidget(lblPreview_);

    connect(txtFilter_, &QLineEdit::textChanged, this, &CommandTree::Filter);
    connect(tvwCmds_, &QTreeWidget::itemActivated, this, &CommandTree::Choose);
    connect(tvwCmds_, &QTreeWidget::currentItemChanged, this, &CommandTree::ShowPreview);
}

void CommandTree::ShowCommands(const std::vector<std::string>& lines) {
    for (int root = 0; root < tvwCmds_->topLevelItemCount(); ++root)
        qDeleteAll(tvwCmds_->topLevelItem(root)->takeChildren());
    for (const std::string& line : lines) {
        const CommandRoot root = RootOf(line);
        if (root == CommandRoot::None) continue;
        auto* const item = new QTreeWidgetItem(tvwCmds_->topLevelItem(static_cast<int>(root)), {Shown(line)});
        item->setToolTip(0, Shown(line));
        item->setData(0, Qt::AccessibleDescriptionRole, Shown(CommandPreview(line)));
    }
}

void CommandTree::FocusTree() { tvwCmds_->setFocus(); }

void CommandTree::Filter(const QString& words) {
    const QStringList wanted = words.split(' ', Qt::SkipEmptyParts);
    for (int root = 0; root < tvwCmds_->topLevelItemCount(); ++root) {
        QTreeWidgetItem* const top = tvwCmds_->topLevelItem(root);
        for (int i = 0; i < top->childCount(); ++i) {
            const QString text = top->child(i)->text(0);
            const bool holds = std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
                return text.contains(word, Qt::CaseInsensitive);
            });
            top->child(i)->setHidden(!holds);
        }
        top->setExpanded(!wanted.isEmpty());
    }
}

void CommandTree::ShowPreview(const QTreeWidgetItem* item) {
    lblPreview_->setText(IsCommand(item) ? item->data(0, Qt::AccessibleDescriptionRole).toString() : QString());
    lblPreview_->setAccessibleDescription(lblPreview_->text());
}

void CommandTree::Choose(const QTreeWidgetItem* item) {
    if (IsCommand(item)) emit CommandChosen(item->text(0));
}
