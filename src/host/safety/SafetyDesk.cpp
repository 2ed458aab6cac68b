#include "safety/SafetyDesk.h"

#include "HostNames.h"
#include "HostWindow.h"
#include "Path.h"
#include "ZvChannel.h"
#include "editor/ZvScheduleEditor.h"
#include "safety/BackupDialog.h"
#include "safety/BasicCopy.h"
#include "safety/NoticeBar.h"
#include "safety/SafetyNames.h"
#include "safety/SafetyNet.h"
#include "safety/UnsavedEdits.h"
#include "storage/BoundedFile.h"
#include "storage/ChannelFile.h"
#include "storage/DurableFile.h"

#include <QAction>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>

#include <algorithm>

namespace Zavo {

namespace {
constexpr int idOfBasicChannel = 0;
} // namespace

SafetyDesk::SafetyDesk(const QString &dataDir, SafetyNet *net, HostWindow *window)
    : m_dataDir(dataDir)
    , m_net(net)
    , m_window(window)
{
    addAction();
    m_notices = new NoticeBar(m_copiesAction, window);
    window->addToolBar(Qt::TopToolBarArea, m_notices);
    m_notices->hide();
    m_unsaved = new UnsavedEdits(window, window->editor(), this);
    // clang-format off
    connect(m_unsaved, SIGNAL(changed(QStringList)), net, SLOT(recordUnsaved(QStringList)));
    connect(net, SIGNAL(changedByOthers(QStringList)), this, SLOT(onChangedByOthers(QStringList)));
    connect(net, SIGNAL(copiesFailed(QString)), this, SLOT(onCopiesFailed(QString)));
    // The editor was connected first, so it has saved by then.
    for (const char *name : {HostNames::saveAction, HostNames::saveAllAction}) {
        if (const QAction *const save = window->editor()->getAction(QLatin1String(name)))
            connect(save, SIGNAL(triggered()), this, SLOT(onSaved()));
    }
    // clang-format on
    m_isBasicCopyOutdated = BasicCopy(dataDir).isOutdated();
    net->setQuestion([this](const QString &filePath) { return mayReplace(filePath); });
}

SafetyDesk::~SafetyDesk()
{
    m_net->setQuestion({});
}

bool SafetyDesk::restore(const QString &dataDir, const BackupState &state)
{
    const QString folder = Path::combine(dataDir, QStringLiteral("channel"));
    QByteArray bytes;
    ZvChannel channel(state.path);
    if (!channel.readFile() || !BoundedFile::read(state.path, ChannelFile::MaximumBytes, &bytes))
        return false;
    const BasicCopy basic(dataDir);
    // The basic channel and its copy have to agree at the next start, which shows the copy.
    QStringList paths{Path::combine(folder, state.fileName)};
    if (state.fileName == BasicCopy::fileName())
        paths.prepend(basic.originalPath());
    else if (channel.id() == idOfBasicChannel && basic.exists())
        paths.append(basic.filePath());
    return std::all_of(paths.cbegin(), paths.cend(), [&bytes](const QString &path) {
        return path.isEmpty() || DurableFile::write(path, bytes);
    });
}

void SafetyDesk::tell(const QString &text)
{
    auto *const box =
        new QMessageBox(QMessageBox::Warning, QGuiApplication::applicationDisplayName(), text,
                        QMessageBox::Ok, m_window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QMetaObject::invokeMethod(box, "open", Qt::QueuedConnection);
}

void SafetyDesk::showCopies()
{
    BackupDialog dialog(m_dataDir, m_net->store(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::optional<BackupState> state = dialog.chosenState();
    if (!state || !confirmRestoring(*state))
        return;
    m_wantedState = state;
    m_window->close();
}

void SafetyDesk::onChangedByOthers(const QStringList &fileNames)
{
    constexpr int maximumNames = 3;
    QString names = fileNames.mid(0, maximumNames).join(QStringLiteral(", "));
    if (fileNames.size() > maximumNames)
        names = tr("%1 and %2 more").arg(names).arg(fileNames.size() - maximumNames);
    m_notices->tell(
        tr("Another program changed %1. It is shown here as it was before.").arg(names));
}

void SafetyDesk::onCopiesFailed(const QString &reason)
{
    m_notices->tell(tr("No safety copies can be made: %1").arg(reason));
}

// One that was another than its original before is another program's, and told of as such.
QString SafetyDesk::remarkOnSaving()
{
    const BasicCopy basic(m_dataDir);
    if (m_net->takeBasicReplaced() && !basic.exists()) {
        return tr("The first channel was opened from \"channel.xml\", a file that goes when it is "
                  "saved. What was saved is among the safety copies; restore it from there.");
    }
    const bool wasOutdated = m_isBasicCopyOutdated;
    m_isBasicCopyOutdated = basic.isOutdated();
    if (!m_isBasicCopyOutdated || wasOutdated)
        return {};
    return tr("The file \"channel.xml\" could not be renewed. The next start would show the first "
              "channel as it was before.");
}

void SafetyDesk::onSaved()
{
    const QString remark = remarkOnSaving();
    if (!remark.isEmpty())
        m_notices->tell(remark);
}

void SafetyDesk::addAction()
{
    m_copiesAction = new QAction(tr("Safety &Copies..."), m_window);
    m_copiesAction->setObjectName(QLatin1String(SafetyNames::copiesAction));
    m_copiesAction->setStatusTip(tr("Shows earlier states of the channels and restores one"));
    m_copiesAction->setWhatsThis(
        tr("Lists the states that each channel file had before it was "
           "replaced or removed, with what differs, and brings one back."));
    connect(m_copiesAction, SIGNAL(triggered()), this, SLOT(showCopies()));
    auto *const help = m_window->findChild<QMenu *>(QLatin1String(HostNames::helpMenu));
    if (!help)
        return;
    QAction *const first = help->actions().value(0);
    help->insertAction(first, m_copiesAction);
    help->insertSeparator(first);
}

bool SafetyDesk::confirmRestoring(const BackupState &state)
{
    QMessageBox box(QMessageBox::Question, tr("Restore Channel"),
                    tr("Restore the channel \"%1\" to its state of %2?")
                        .arg(BackupDialog::titleOf(state),
                             QLocale().toString(state.modified, QLocale::ShortFormat)),
                    QMessageBox::Yes | QMessageBox::No, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        tr("The window is closed and opened anew to show it. You are asked before about channels "
           "with edits that are not saved. The present state stays among the safety copies."));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool SafetyDesk::mayReplace(const QString &filePath)
{
    const HostWindow::Busy busy(m_window);
    QMessageBox box(QMessageBox::Warning, tr("Save Channel"),
                    tr("The channel file \"%1\" was changed by another program.")
                        .arg(QFileInfo(filePath).fileName()),
                    QMessageBox::Yes | QMessageBox::No, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("Do you want to overwrite it? Whichever of the two states is not in "
                              "the file afterwards stays among the safety copies."));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace Zavo
