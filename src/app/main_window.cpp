#include "app/main_window.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include "app/accessibility.h"
#include "app/dialogs/colour_dialogs.h"
#include "app/dialogs/dialogs.h"
#include "app/dialogs/ui_text.h"
#include "app/key_finder.h"
#include "app/quick_switch.h"
#include "app/tape_panel.h"
#include "engine/function_ids.h"
#include "engine/keyboards.h"
#include "session/keypad.h"
#include "session/session.h"

namespace brinto {

namespace {

// The display's height when the keys need the rest: the annunciators and X.
constexpr int kSmallestDisplay = 56;

bool IsBasic(const Engine& e) { return e.state.viewFlags & view::ModeMask; }

// The program's icon, built into the program, at the sizes a window manager shows (the installed
// copies in the icon theme are the same pictures, for menus and docks). Only PNGs: an SVG would need
// Qt's SVG module, and every module costs start-up time.
QIcon ProgramIcon() {
    const QString name = QStringLiteral(BRINTO_APP_ID);
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128}) {
        icon.addFile(QStringLiteral(":/icons/%1x%1/apps/%2.png").arg(size).arg(name), QSize(size, size));
    }
    return icon;
}

}  // namespace

MainWindow::MainWindow(Session& session, QWidget* parent) : QMainWindow(parent), m_session(session) {
    setWindowTitle(QStringLiteral("Brinto"));
    // The application's icon too, so that the About box and every other window show the program's.
    // Reading the pictures takes a few milliseconds, so it is done once the window is up rather
    // than before it appears.
    QTimer::singleShot(0, this, [this] {
        const QIcon icon = ProgramIcon();
        setWindowIcon(icon);
        if (QApplication::windowIcon().isNull()) QApplication::setWindowIcon(icon);
    });
    // The handheld's 240 pixels across; 360 down so that every key keeps legends of 11 pixels
    // (capitals of 8) with the menus, the Quick Switch strip and the annunciators and X.
    setMinimumSize(240, 360);
    resize(360, 480);

    InstallAccessibility();
    m_pane = new QWidget(this);
    m_pane->installEventFilter(this);
    setCentralWidget(m_pane);
    m_display = new DisplayView(session.engine(), m_pane);
    m_keys = new KeyView(m_pane);
    m_basic = new KeyView(m_pane);
    connect(m_display, &DisplayView::Tapped, this, [this](TapArea area) { DisplayTapped(area); });
    connect(m_keys, &KeyView::Tapped, this, [this](int index) { KeyTapped(m_keys, index); });
    connect(m_basic, &KeyView::Tapped, this, [this](int index) { KeyTapped(m_basic, index); });

    m_toolBar = new QToolBar(this);
    m_toolBar->setMovable(false);
    m_toolBar->setFloatable(false);
    m_toolBar->toggleViewAction()->setVisible(false);
    if (auto* more = m_toolBar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"))) {
        more->setAccessibleName(Ui::tr("More"));
    }
    addToolBar(Qt::TopToolBarArea, m_toolBar);
    m_selector = new QComboBox(m_toolBar);
    m_selector->setFocusPolicy(Qt::NoFocus);
    for (std::string_view name : kKeyboardNames) m_selector->addItem(Ui::tr(name.data()));
    m_selector->setAccessibleName(Ui::tr("Keyboard"));
    m_toolBar->addWidget(m_selector);
    connect(m_selector, &QComboBox::activated, this, [this](int index) { m_session.SelectKeyboard(index); });

    m_strip = new QuickSwitchStrip(m_pane);
    m_stripButtons = m_strip->buttons();
    connect(m_strip, &QuickSwitchStrip::chosen, this, [this](int index) { m_session.SelectKeyboard(index); });

    BuildMenus();
    ApplyTheme();
    // Tab goes from the display to the keys on show and back.
    setTabOrder(m_display, m_keys);
    setTabOrder(m_keys, m_basic);
    m_display->setFocus();
}

// Every menu and entry has a mnemonic (Alt+V opens View), and F10 opens the menu bar, so the
// menus are reached from the keyboard under every style. Entries act once the menu has closed:
// one chosen by a screen reader's action must not keep the screen reader waiting on the window
// it opens.
void MainWindow::BuildMenus() {
    const auto add = [this](QMenu* menu, const QString& text, auto&& what, QKeySequence key = {}) {
        QAction* action = menu->addAction(text);
        if (!key.isEmpty()) action->setShortcut(key);
        connect(action, &QAction::triggered, this, what, Qt::QueuedConnection);
        return action;
    };
    Session& s = m_session;
    QMenu* viewMenu = menuBar()->addMenu(Ui::tr("&View"));
    add(viewMenu, Ui::tr("&Basic"), [&s] { s.Basic(); });
    add(viewMenu, Ui::tr("&Advanced"), [&s] { s.Advanced(); });
    viewMenu->addSeparator();
    const std::pair<const char*, View> views[] = {
        {QT_TRANSLATE_NOOP("Ui", "&Stack..."), View::Stack},
        {QT_TRANSLATE_NOOP("Ui", "&User Registers..."), View::UserRegisters},
        {QT_TRANSLATE_NOOP("Ui", "&Constants..."), View::Constants},
        {QT_TRANSLATE_NOOP("Ui", "&TVM..."), View::Tvm},
        {QT_TRANSLATE_NOOP("Ui", "Amorti&zation..."), View::Amortization},
        {QT_TRANSLATE_NOOP("Ui", "Cash &Flow..."), View::CashFlow},
        {QT_TRANSLATE_NOOP("Ui", "Stat&istical..."), View::Statistical}};
    for (const auto& [text, which] : views) {
        add(viewMenu, Ui::tr(text), [this, which = which] { OpenView(which); });
    }
    // The Date & Time keyboard has no keys for these; they serve every keyboard from here.
    viewMenu->addSeparator();
    add(
        viewMenu, Ui::tr("Enter &Date..."), [this] { Dialogs().OpenEnterDate(); },
        QKeySequence(Qt::CTRL | Qt::Key_D));
    add(
        viewMenu, Ui::tr("Enter Ti&me..."), [this] { Dialogs().OpenEnterTime(); },
        QKeySequence(Qt::CTRL | Qt::Key_T));
    add(
        viewMenu, Ui::tr("Du&rations..."), [this] { Dialogs().OpenDurations(); },
        QKeySequence(Qt::CTRL | Qt::Key_U));
    viewMenu->addSeparator();
    m_tapeAction = add(
        viewMenu, Ui::tr("&History Tape"), [this](bool on) { ShowTape(on); },
        QKeySequence(Qt::CTRL | Qt::Key_H));
    m_tapeAction->setCheckable(true);

    QMenu* editMenu = menuBar()->addMenu(Ui::tr("&Edit"));
    add(
        editMenu, Ui::tr("&Undo"), [&s] { s.Undo(); }, QKeySequence(Qt::CTRL | Qt::Key_Z));
    QAction* redo = add(editMenu, Ui::tr("&Redo"), [&s] { s.Redo(); });
    redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    editMenu->addSeparator();
    add(
        editMenu, Ui::tr("Cu&t"), [&s] { s.Cut(); }, QKeySequence(Qt::CTRL | Qt::Key_X));
    add(
        editMenu, Ui::tr("&Copy"), [&s] { s.Copy(); }, QKeySequence(Qt::CTRL | Qt::Key_C));
    add(
        editMenu, Ui::tr("&Paste"), [&s] { s.Paste(); }, QKeySequence(Qt::CTRL | Qt::Key_V));
    editMenu->addSeparator();
    // Every key by its name, and the shift latch, for those who do not use the mouse.
    add(
        editMenu, Ui::tr("&Find Key..."), [this] { OpenKeyFinder(); }, QKeySequence(Qt::CTRL | Qt::Key_K));
    add(
        editMenu, Ui::tr("S&hift"),
        [this] {
            m_session.TapKey(fid::Shift);
            KeyDone();
        },
        QKeySequence(Qt::Key_F2));

    QMenu* optionsMenu = menuBar()->addMenu(Ui::tr("&Options"));
    add(optionsMenu, Ui::tr("&Preferences..."), [this] { OpenView(View::Preferences); });
    add(optionsMenu, Ui::tr("&Keyboard..."), [this] { OpenView(View::Keyboard); });
    optionsMenu->addSeparator();
    add(optionsMenu, Ui::tr("&About Brinto..."), [this] { Dialogs().OpenAbout(); });
    optionsMenu->addSeparator();
    add(
        optionsMenu, Ui::tr("&Quit"), [this] { close(); }, QKeySequence(Qt::CTRL | Qt::Key_Q));

    auto* help = new QAction(this);
    help->setShortcut(QKeySequence(Qt::Key_F1));
    connect(help, &QAction::triggered, this, [this] { OpenHelp(QStringLiteral("Main_Contents")); });
    addAction(help);
    auto* menus = new QAction(this);
    menus->setShortcut(QKeySequence(Qt::Key_F10));
    connect(menus, &QAction::triggered, this, [this] { menuBar()->setActiveAction(menuBar()->actions().value(0)); });
    addAction(menus);
}

void MainWindow::OpenKeyFinder() {
    if (!m_finder) {
        m_finder = new KeyFinder(this);
        connect(m_finder, &KeyFinder::keyChosen, this, [this](FunctionId id) {
            m_session.TapKey(id);
            KeyDone();
        });
    }
    m_finder->Clear();
    m_finder->open();
}

void MainWindow::ApplyTheme() {
    m_themes.ApplyTheme(m_themes.SelectTheme(m_session.engine().prefs.Theme()));
    m_colours = MakeScreenColours(m_themes, m_session.engine().prefs, DefaultDisplayStyle(m_themes), m_customColours);
    if (m_dialogs) m_dialogs->SetScreenColours(m_colours);
    QPalette palette = m_pane->palette();
    palette.setColor(QPalette::Window, ToQColor(m_colours.window));
    m_pane->setPalette(palette);
    m_pane->setAutoFillBackground(true);
    Refresh();
}

void MainWindow::Refresh() {
    const Engine& e = m_session.engine();
    const Preferences& p = e.prefs;
    const int keyboard = e.Keyboard();
    const bool basic = IsBasic(e);

    std::vector<KeyCell> cells;
    const KeyBlock unshifted = KeyLayout(keyboard, 0, m_session.userKeys());
    const KeyBlock shifted = KeyLayout(keyboard, 1, m_session.userKeys());
    for (int k = 0; k < kBlockKeys; ++k) cells.push_back({unshifted[k], shifted[k], k + 1});
    for (const KeypadRow& row : SharedKeypad()) {
        for (const KeypadKey& key : row) cells.push_back({key.unshifted, key.shifted, 0});
    }
    m_keys->SetKeys(std::move(cells), kKeypadColumns);
    std::vector<KeyCell> basicCells;
    for (const BasicRow& row : BasicKeys(e.Method())) {
        for (FunctionId id : row) basicCells.push_back({id, id, 0});
    }
    m_basic->SetKeys(std::move(basicCells), kBasicColumns);

    const QString name = m_selector->itemText(keyboard);
    const KeyboardNamePlace namePlace = KeyboardNamePlaceOf(p, m_themes);
    KeyLook look;
    look.colours = m_colours;
    look.sizeSet = KeySizeSetOf(KeySizeOf(p, m_themes));
    look.framed = BordersOf(p, m_themes).keyboardFrame;
    look.arrangement = LegendArrangementOf(p, m_themes);
    look.shadow = KeyShadowDepth(p, m_themes);
    look.corner = m_themes.keyStyle()[key_style::Corner];
    look.shifted = e.state.status & status::FirstShift;
    look.title = namePlace == KeyboardNamePlace::AboveKeys && !basic ? name : QString();
    for (const KeyView* view : {m_keys, m_basic}) {
        for (int i = 0; i < view->KeyCount(); ++i) {
            for (const FunctionId id : {view->Key(i).unshifted, view->Key(i).shifted}) {
                if (IsLatchKey(id) && LatchOn(e, id)) look.latchedOn.push_back(id);
            }
        }
    }
    m_keys->SetLook(look);
    look.title.clear();
    m_basic->SetLook(look);
    m_display->SetLook(m_colours, m_themes, namePlace == KeyboardNamePlace::InDisplay && !basic ? name : QString());

    m_keys->setVisible(!basic);
    m_basic->setVisible(basic);
    const bool quick = p.QuickSwitch();
    m_strip->setVisible(quick && !basic);
    m_toolBar->setVisible(!quick);
    // The Basic view has no keyboards to choose from.
    m_selector->setEnabled(!basic);
    if (m_selector->currentIndex() != keyboard) m_selector->setCurrentIndex(keyboard);
    if (QAbstractButton* button = m_stripButtons->button(keyboard); button && !button->isChecked()) {
        button->setChecked(true);
    }
    LayoutViews();
}

void MainWindow::LayoutViews() {
    const Engine& e = m_session.engine();
    const Preferences& p = e.prefs;
    const bool basic = IsBasic(e);
    QRect area = m_pane->rect();
    if (m_strip->isVisibleTo(m_pane)) {
        const int stripHeight = m_strip->PreferredHeight(area.width());
        m_strip->FitTo(area.width());
        m_strip->setGeometry(area.left(), area.bottom() - stripHeight + 1, area.width(), stripHeight);
        area.setBottom(area.bottom() - stripHeight);
    }
    // The keys take the height their shape asks for, and the display the rest: more of it in the
    // Basic view, where there are fewer keys.
    KeyView* keys = basic ? m_basic : m_keys;
    const int wanted = PreferredKeyboardHeight(area.width(), keys->Columns(), std::max(1, keys->Rows()),
                                               KeySizeSetOf(KeySizeOf(p, m_themes)), BordersOf(p, m_themes).keyboardFrame);
    // Every line the display shows must fit; the keys then give up height, down to half the area.
    const int room = std::max(area.height() - m_display->PreferredHeight(area.width()), area.height() / 2);
    const int title = keys->TitleHeight(area.width());
    int keyHeight = std::min({wanted + title, room, static_cast<int>(area.height() * (basic ? 0.62 : 0.8))});
    // On a small window the keys keep legends of 8 pixels, and the display gives up lines for them.
    const int legible = KeyboardHeightFor(LegibleKeyHeight(), area.width(), std::max(1, keys->Rows()),
                                          KeySizeSetOf(KeySizeOf(p, m_themes)), BordersOf(p, m_themes).keyboardFrame);
    keyHeight = std::max(keyHeight, std::min(legible + title, area.height() - kSmallestDisplay));
    m_display->setGeometry(area.left(), area.top(), area.width(), area.height() - keyHeight);
    keys->setGeometry(area.left(), area.bottom() - keyHeight + 1, area.width(), keyHeight);
}

void MainWindow::KeyTapped(const KeyView* view, int index) {
    const KeyCell& key = view->Key(index);
    if (key.block > 0) {
        m_session.TapBlockKey(key.block);
    } else {
        const FunctionId id = view->ActiveId(index);
        m_session.Tap(id == kNoKey ? id : m_session.Remap(id));
    }
    KeyDone();
}

void MainWindow::KeyDone() {
    // An open Stack or register view follows every key.
    if (m_dialogs) m_dialogs->Refresh();
}

void MainWindow::DisplayTapped(TapArea area) {
    static constexpr std::pair<TapTarget, View> kTargets[] = {
        {TapTarget::Preferences, View::Preferences}, {TapTarget::Keyboard, View::Keyboard},
        {TapTarget::Stack, View::Stack}, {TapTarget::UserRegisters, View::UserRegisters},
        {TapTarget::Constants, View::Constants}, {TapTarget::Tvm, View::Tvm},
        {TapTarget::Amortization, View::Amortization}, {TapTarget::CashFlow, View::CashFlow},
        {TapTarget::Statistical, View::Statistical}};
    const TapTarget target = m_session.engine().prefs.Tap(area);
    for (const auto& [tap, view] : kTargets) {
        if (tap == target) OpenView(view);
    }
}

dialogs::DialogHost& MainWindow::Dialogs() {
    if (m_dialogs) return *m_dialogs;
    m_dialogs = new dialogs::DialogHost(m_session, this, {}, m_store);
    m_dialogs->SetScreenColours(m_colours);
    connect(m_dialogs, &dialogs::DialogHost::changed, this, [this] { Refresh(); });
    connect(m_dialogs, &dialogs::DialogHost::preferencesClosed, this, [this] { ApplyTheme(); });
    connect(m_dialogs, &dialogs::DialogHost::coloursChanged, this, [this](const CustomColours& colours) {
        m_customColours = colours;
        ApplyTheme();
    });
    return *m_dialogs;
}

void MainWindow::UseStore(SessionStore* store) {
    m_store = store;
    if (!store) return;
    if (const auto saved = store->FrontEndSetting(dialogs::kCustomColoursSetting)) {
        m_customColours = dialogs::UnpackColours(*saved);
    }
}

void MainWindow::OpenView(View view) { Dialogs().Open(view); }

void MainWindow::OpenHelp(const QString& anchor) { Dialogs().OpenHelp(anchor.toStdString()); }

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (HardwareKey(event)) {
        KeyDone();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

bool MainWindow::HardwareKey(QKeyEvent* event) {
    const Qt::KeyboardModifiers mods = event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (mods != Qt::NoModifier) return false;
    switch (event->key()) {
        case Qt::Key_Backspace: m_session.Special(SpecialKey::Backspace); return true;
        case Qt::Key_Delete: m_session.Special(SpecialKey::Delete); return true;
        case Qt::Key_Return:
        case Qt::Key_Enter: m_session.ActionButton(); return true;
        case Qt::Key_Up: m_session.Special(SpecialKey::Up); return true;
        case Qt::Key_Down: m_session.Special(SpecialKey::Down); return true;
        case Qt::Key_Left: m_session.Special(SpecialKey::Left); return true;
        case Qt::Key_Right: m_session.Special(SpecialKey::Right); return true;
        default: break;
    }
    const QString text = event->text();
    if (text.size() == 1 && text[0].isPrint()) {
        m_session.CharacterKey(text[0].unicode());
        return true;
    }
    return false;
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange) {
        if (!isActiveWindow()) {
            Save();
        } else if (onActivate) {
            onActivate();
        }
    }
    if (event->type() == QEvent::WindowStateChange && isMinimized()) Save();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (onQuit && !onQuit()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
    // The help viewer and the modeless views are windows of their own: they must not keep a
    // program running that the user has quit.
    QCoreApplication::quit();
}

void MainWindow::PickedUp(bool preferences) {
    if (preferences) {
        ApplyTheme();  // also refreshes
    } else {
        Refresh();
    }
    if (m_dialogs) m_dialogs->Refresh();
}

void MainWindow::ShowTape(bool shown) {
    if (!m_tape && !shown) return;
    if (!m_tape) {
        m_tape = new TapePanel(m_session, m_store, this);
        // Beside the display in a wide window, under the keys in a tall one.
        addDockWidget(width() > height() ? Qt::RightDockWidgetArea : Qt::BottomDockWidgetArea, m_tape);
        // The menu entry follows the panel's own close button. Connected to the entry, not the
        // window, so that nothing reaches a window being taken down.
        connect(m_tape, &QDockWidget::visibilityChanged, m_tapeAction, &QAction::setChecked);
    }
    if (shown) m_tape->Reload();
    // The tape brings room of its own: the window grows by it, as far as the screen allows, and
    // gives it back when the tape goes, rather than squeezing the keys.
    const bool beside = dockWidgetArea(m_tape) == Qt::RightDockWidgetArea || dockWidgetArea(m_tape) == Qt::LeftDockWidgetArea;
    const bool plain = !isMaximized() && !isFullScreen();
    if (shown && !m_tape->isVisible() && plain) {
        const QSize before = size();
        QSize grown = beside ? QSize(width() * 7 / 4, height()) : QSize(width(), height() * 3 / 2);
        if (const QScreen* s = screen()) grown = grown.boundedTo(s->availableGeometry().size());
        resize(grown);
        m_tapeGrowth = size() - before;
        resizeDocks({m_tape}, {beside ? m_tapeGrowth.width() : m_tapeGrowth.height()},
                    beside ? Qt::Horizontal : Qt::Vertical);
    }
    m_tape->setVisible(shown);
    if (!shown && plain && !m_tapeGrowth.isEmpty()) resize(size() - m_tapeGrowth);
    if (!shown) m_tapeGrowth = {};
    if (shown) m_tape->list()->setFocus();
}

void MainWindow::TapeChanged() {
    if (m_tape && m_tape->isVisible()) m_tape->Reload();
}

void MainWindow::ShowSaveFailure(const QString& text) {
    if (text.isEmpty()) {
        if (m_saveFailure) statusBar()->hide();
        return;
    }
    if (!m_saveFailure) {
        m_saveFailure = new QLabel(this);
        m_saveFailure->setObjectName(QStringLiteral("saveFailure"));
        m_saveFailure->setWordWrap(true);
        m_saveFailure->setAccessibleName(Ui::tr("Not saved"));
        statusBar()->addWidget(m_saveFailure, 1);
    }
    m_saveFailure->setText(Ui::tr("Not saved: %1").arg(text));
    m_saveFailure->show();
    statusBar()->show();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_pane && event->type() == QEvent::Resize) LayoutViews();
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::Save() {
    if (onSave) onSave();
}

}  // namespace brinto
