#include "ui/ControlPanel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <iterator>
#include <vector>

namespace {

constexpr int kTabCount = 5;
constexpr int kColumns = 3;

/// A button of the panel: what it sends, and what it shows: a caption, or a picture with its meaning as tool tip.
struct PanelButton {
    int tab;
    const char* tag;
    const char* caption;
    const char* picture;
    const char* meaning;
};

// A row's place on its tab is also the button's number and its key.
// clang-format off
constexpr PanelButton kButtons[] = {
    {0, "use",       "Use",      nullptr,        QT_TRANSLATE_NOOP("ControlPanel", "Use what is before you")},
    {0, "m 3",       nullptr,    "step-3",       QT_TRANSLATE_NOOP("ControlPanel", "Step down and to the right")},
    {0, "m 1",       nullptr,    "step-1",       QT_TRANSLATE_NOOP("ControlPanel", "Step down and to the left")},
    {0, "m 9",       nullptr,    "step-9",       QT_TRANSLATE_NOOP("ControlPanel", "Step up and to the right")},
    {0, "m 7",       nullptr,    "step-7",       QT_TRANSLATE_NOOP("ControlPanel", "Step up and to the left")},
    {0, "stand",     nullptr,    "stand",        QT_TRANSLATE_NOOP("ControlPanel", "Stand up")},
    {0, ">",         nullptr,    "turn-right",   QT_TRANSLATE_NOOP("ControlPanel", "Turn to the right")},
    {0, "<",         nullptr,    "turn-left",    QT_TRANSLATE_NOOP("ControlPanel", "Turn to the left")},
    {0, "sit",       "Sit",      nullptr,        QT_TRANSLATE_NOOP("ControlPanel", "Sit down")},
    {0, "liedown",   "Liedown",  nullptr,        QT_TRANSLATE_NOOP("ControlPanel", "Lie down")},
    {0, "get",       "Get",      nullptr,        QT_TRANSLATE_NOOP("ControlPanel", "Pick up or put down")},
    {1, "gomap '",   nullptr,    "map-haven",    QT_TRANSLATE_NOOP("ControlPanel", "Go to map '")},
    {1, "gomap $",   nullptr,    "map-arch",     QT_TRANSLATE_NOOP("ControlPanel", "Go to map $")},
    {1, "gomap (",   nullptr,    "map-star",     QT_TRANSLATE_NOOP("ControlPanel", "Go to map (")},
    {1, "gostart",   nullptr,    "home",         QT_TRANSLATE_NOOP("ControlPanel", "Go to where you started")},
    {1, "gomap &",   nullptr,    "map-paw",      QT_TRANSLATE_NOOP("ControlPanel", "Go to map &")},
    {1, "gomap *",   nullptr,    "map-columns",  QT_TRANSLATE_NOOP("ControlPanel", "Go to map *")},
    {1, "goalleg",   nullptr,    "map-island",   QT_TRANSLATE_NOOP("ControlPanel", "Go to Allegria Island")},
    {1, "gomap %",   nullptr,    "map-moon",     QT_TRANSLATE_NOOP("ControlPanel", "Go to map %")},
    {1, "goback",    nullptr,    "back",         QT_TRANSLATE_NOOP("ControlPanel", "Go back")},
    {3, "portrchng", "Portrait", nullptr,        QT_TRANSLATE_NOOP("ControlPanel", "Change the portrait")},
    {3, "wings",     nullptr,    "wings",        QT_TRANSLATE_NOOP("ControlPanel", "Show or hide the wings")},
    {3, "dragon",    nullptr,    "dragon",       QT_TRANSLATE_NOOP("ControlPanel", "Become a dragon")},
    {3, "breath",    nullptr,    "breath",       QT_TRANSLATE_NOOP("ControlPanel", "Breathe fire")},
    {3, "phoenix",   nullptr,    "phoenix",      QT_TRANSLATE_NOOP("ControlPanel", "Become a phoenix")},
    {3, "flame",     "Flame",    nullptr,        QT_TRANSLATE_NOOP("ControlPanel", "Burst into flame")},
    {4, "gryffe",    "Gryffe",   nullptr,        QT_TRANSLATE_NOOP("ControlPanel", "Become a gryffe")},
    {4, "eagle",     "Eagle",    nullptr,        QT_TRANSLATE_NOOP("ControlPanel", "Become an eagle")},
};
// clang-format on

struct ToolButton {
    Tool tool;
    const char* caption;
};

constexpr ToolButton kTools[] = {
    {Tool::PlayerEditor, "Furcadia  Player Editor"},  // Kept on purpose: the two blanks have always stood there.
    {Tool::GameConfiguration, "Furcadia Configuration"},
    {Tool::VorelConfiguration, "Vorel Configuration"},
};

constexpr int kToolTab = 2;

QToolButton* NewButton(const QString& name, const QString& caption, const QString& picture, const QString& tip) {
    auto* const button = new QToolButton;
    button->setObjectName(name);
    button->setText(caption);
    if (!picture.isEmpty()) {
        button->setIcon(QIcon(":/icons/" + picture + ".svg"));
        button->setIconSize({24, 24});
    }
    button->setToolTip(tip);
    button->setAccessibleName(caption.isEmpty() ? tip : caption);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    return button;
}

/// Keys that click a button as long as it can be seen.
void SetKeys(QToolButton& button, const QKeySequence& keys) {
    button.setShortcut(keys);
    button.setToolTip(QStringLiteral("%1 (%2)").arg(button.toolTip(), keys.toString(QKeySequence::NativeText)));
    button.setAccessibleDescription(button.toolTip());
}

QString ArrayName(const char* letter, int index) { return QStringLiteral("cmd%1_%2").arg(letter).arg(index); }

}  // namespace

ControlPanel::ControlPanel(QWidget* parent) : QGroupBox(parent), tsControls_(new QTabBar) {
    setObjectName("fmeControls");
    setTitle("Control Panel");
    tsControls_->setObjectName("tsControls");
    tsControls_->setAccessibleName(tr("Pages of the control panel"));
    tsControls_->setAccessibleDescription(tr("Chooses which commands are shown"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(tsControls_);

    std::vector<QGridLayout*> grids;
    for (int tab = 0; tab < kTabCount; ++tab) {
        const QString letter(QChar('A' + tab));
        tsControls_->addTab(letter);
        auto* const frame = new QGroupBox(letter);
        frame->setObjectName(QStringLiteral("fmeTab_%1").arg(tab));
        grids.push_back(new QGridLayout(frame));
        fmeTab_ << frame;
        layout->addWidget(frame);
    }
    layout->addStretch();

    std::vector<int> counts(kTabCount, 0);
    const auto place = [&](int tab, QToolButton* button, int columns) {
        constexpr char kKeys[] = "1234567890-";  // for as many as the fullest tab has
        const int index = counts[static_cast<std::size_t>(tab)]++;
        SetKeys(*button, QKeySequence(QStringLiteral("Alt+") + QChar(kKeys[index])));
        grids[static_cast<std::size_t>(tab)]->addWidget(button, index / columns, index % columns);
    };
    for (const PanelButton& row : kButtons) {
        const QString tag(row.tag);
        const char letter[] = {static_cast<char>('A' + row.tab), '\0'};
        const QString tip = tr("%1: sends %2").arg(tr(row.meaning), tag);
        QToolButton* const button =
            NewButton(ArrayName(letter, counts[static_cast<std::size_t>(row.tab)]), row.caption, row.picture, tip);
        button->setProperty("tag", tag);
        connect(button, &QToolButton::clicked, this, [this, tag] { emit CommandChosen(tag); });
        place(row.tab, button, kColumns);
    }
    for (const auto& [tool, caption] : kTools) {
        const QString name = ArrayName("C", counts[kToolTab]);
        QToolButton* const button = NewButton(name, caption, {}, tr("Opens %1").arg(caption));
        connect(button, &QToolButton::clicked, this, [this, tool = tool] { emit ToolChosen(tool); });
        place(kToolTab, button, 1);
    }

    connect(tsControls_, &QTabBar::currentChanged, this, &ControlPanel::ShowTab);
    ShowTab(0);
}

void ControlPanel::ShowTab(int index) {
    for (QGroupBox* const frame : fmeTab_) frame->setVisible(false);
    fmeTab_[index]->setVisible(true);
}

EmoticonRow::EmoticonRow(QWidget* parent) : QWidget(parent) {
    constexpr int kCount = 16;
    setObjectName("fmeEmoticons");
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (int i = 0; i < kCount; ++i) {
        const QChar letter('A' + i);
        const QString tag = QStringLiteral("#S") + letter;
        const QString picture = QStringLiteral("emoticon-") + letter.toLower();
        QToolButton* const button = NewButton(QStringLiteral("cmdEmoticon_%1").arg(i), {}, picture,
                                              tr("Emoticon %1: adds %2 to the line").arg(letter, tag));
        button->setProperty("tag", tag);
        button->setAutoRaise(true);
        SetKeys(*button, QKeySequence(QStringLiteral("Alt+Shift+") + letter));
        connect(button, &QToolButton::clicked, this, [this, tag] { emit EmoticonChosen(tag); });
        layout->addWidget(button, 0, i);
    }
    layout->setColumnStretch(kCount, 1);
}
