#include "upload/UploadJob.h"

#include "upload/FolderLookup.h"
#include "upload/UploadNames.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>
#include <QRegularExpression>

namespace Zavo {

namespace {
constexpr int percentOfAssembling = 95;
constexpr int percentOfAll = 100;
constexpr int longestPlacingMs = 20000; // at the end of the program

QString everythingIn(const char *folder)
{
    return QStringLiteral("--include=/%1/***").arg(QLatin1String(folder));
}

/// Names of what a listing of rsync has in the folder itself, as far as their kind, the first
/// letter of a line, is among @p kinds.
QStringList namesInListing(const QByteArray &listing, const char *kinds)
{
    const QRegularExpression line(
        QStringLiteral("^[%1][^\\s]{9,}\\s+[\\d,.]+\\s+[\\d/-]+\\s+[\\d:.]+\\s(.+)$")
            .arg(QLatin1String(kinds)),
        QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = line.globalMatch(QString::fromUtf8(listing));
    while (matches.hasNext())
        names.append(matches.next().captured(1));
    return names;
}
} // namespace

UploadJob::UploadJob(const UploadTarget &target, QObject *parent)
    : QObject(parent)
    , m_target(target)
    , m_message(tr("Waiting"))
{
    connect(&m_rsync, SIGNAL(progressed(int)), this, SLOT(onProgressed(int)));
    connect(&m_rsync, SIGNAL(ended()), this, SLOT(onEnded()));
}

UploadJob::~UploadJob()
{
    blockSignals(true);
    QElapsedTimer clock;
    clock.start();
    while (isPlacing() && clock.elapsed() < longestPlacingMs) {
        if (!m_rsync.waitForEnd(longestPlacingMs))
            return;
    }
}

bool UploadJob::isOver() const
{
    return m_state != State::Waiting && m_state != State::Running;
}

void UploadJob::start(const UploadSet &set)
{
    if (m_state != State::Waiting)
        return;
    m_set = set;
    m_state = State::Running;
    if (m_target.kind() == UploadTarget::Kind::Folder)
        findFolder();
    else
        startStep(Step::Look);
}

void UploadJob::fail(const QString &message)
{
    if (m_state == State::Waiting)
        end(State::Failed, message);
}

void UploadJob::cancel()
{
    if (m_state == State::Waiting)
        end(State::Cancelled, tr("Cancelled."));
    else if (m_state == State::Running && m_step == Step::Find)
        end(State::Cancelled, tr("Cancelled. The target keeps what it had."));
    else if (m_state == State::Running && !isPlacing())
        m_rsync.stop();
}

void UploadJob::onProgressed(int percent)
{
    const int share = percent * percentOfAssembling / percentOfAll;
    if (m_step != Step::Assemble || share <= m_percent)
        return;
    m_percent = share;
    Q_EMIT changed();
}

void UploadJob::onEnded()
{
    const RsyncResult &result = m_rsync.result();
    // The files are in place; what is left of the hidden folder goes with the next upload.
    if (result.outcome == RsyncResult::Outcome::Done || m_step == Step::CleanUp) {
        onStepDone();
        return;
    }
    m_details = result.details;
    const bool stopped = result.outcome == RsyncResult::Outcome::Stopped;
    if (isPlacing()) {
        end(State::Failed,
            tr("%1 It broke off while the files were put in place, so the target may hold a "
               "mixture. Please upload again.")
                .arg(result.message));
    } else {
        end(stopped ? State::Cancelled : State::Failed,
            tr("%1 The target keeps what it had.").arg(result.message));
    }
}

void UploadJob::onFolderFound(const QString &canonicalPath)
{
    if (m_state != State::Running || m_step != Step::Find)
        return;
    // What does not exist is for rsync to tell.
    if (!canonicalPath.isEmpty() && UploadTarget(canonicalPath).overlaps(m_set.origin))
        end(State::Failed, tr("This is where the data folder of the editor lies."));
    else
        startStep(Step::Look);
}

void UploadJob::findFolder()
{
    m_step = Step::Find;
    m_message = stepMessage();
    auto *const lookup = new FolderLookup(m_target.destination());
    connect(lookup, SIGNAL(found(QString)), this,
                           SLOT(onFolderFound(QString)), Qt::QueuedConnection);
    lookup->start();
    Q_EMIT changed();
}

void UploadJob::startStep(Step step)
{
    m_step = step;
    m_message = stepMessage();
    m_percent = step > Step::Assemble ? percentOfAssembling : m_percent;
    m_rsync.start(arguments());
    Q_EMIT changed();
}

QString UploadJob::stepMessage() const
{
    switch (m_step) {
    case Step::Find:
    case Step::Look:
        return tr("Connecting");
    case Step::Assemble:
        return tr("Transferring");
    case Step::PlaceStages:
    case Step::PlaceAll:
        return tr("Putting in place");
    case Step::CleanUp:
        break;
    }
    return tr("Tidying up");
}

QStringList UploadJob::arguments() const
{
    switch (m_step) {
    case Step::Find:
    case Step::Look:
        return lookArguments();
    case Step::Assemble:
        return assembleArguments();
    case Step::PlaceStages:
    case Step::PlaceAll:
        return placeArguments();
    case Step::CleanUp:
        break;
    }
    return cleanUpArguments();
}

// Contents are compared, not times: a file can be saved twice within a second.
QStringList UploadJob::assembleArguments() const
{
    return QStringList{
               QStringLiteral("--recursive"),
               QStringLiteral("--checksum"),
               QStringLiteral("--delete"),
               QStringLiteral("--chmod=D755,F644"),
               QStringLiteral("--outbuf=N"),
               QStringLiteral("--info=progress2"),
               QStringLiteral("--no-inc-recursive"),
               QStringLiteral("--no-motd"),
               QStringLiteral("--protect-args"),
               QStringLiteral("--link-dest=.."),
               QStringLiteral("--exclude=/%1").arg(QLatin1String(UploadNames::emptyFolder))} +
           m_target.options() +
           QStringList{QStringLiteral("--"), setFolder(), m_target.destination(stagingFolder())};
}

QStringList UploadJob::lookArguments() const
{
    QStringList options = m_target.options();
    options.removeAll(QStringLiteral("--fsync"));
    return QStringList{QStringLiteral("--list-only"), QStringLiteral("--no-motd"),
                       QStringLiteral("--protect-args")} +
           options + QStringList{QStringLiteral("--"), m_target.destination()};
}

QStringList UploadJob::placeArguments() const
{
    QStringList words{QStringLiteral("--recursive"),       QStringLiteral("--checksum"),
                      QStringLiteral("--chmod=D755,F644"), QStringLiteral("--no-motd"),
                      QStringLiteral("--protect-args"),    everythingIn(UploadNames::stageFolder)};
    if (m_keptFolder.isEmpty())
        words.append(QStringLiteral("--link-dest=%1").arg(stagingFolder()));
    else // A link would replace what is to be kept; what is new there is copied from beside.
        words += QStringList{QStringLiteral("--backup"), QStringLiteral("--delay-updates"),
                             QStringLiteral("--backup-dir=%1").arg(m_keptFolder),
                             QStringLiteral("--copy-dest=%1").arg(stagingFolder())};
    if (m_step == Step::PlaceAll)
        words +=
            QStringList{QStringLiteral("--delete-delay"), everythingIn(UploadNames::channelFolder),
                        QStringLiteral("--include=/%1").arg(QLatin1String(UploadNames::markFile))};
    words.append(QStringLiteral("--exclude=*"));
    return words + m_target.options() +
           QStringList{QStringLiteral("--"), setFolder(), m_target.destination()};
}

// An empty folder is sent over the hidden one, since rsync has no other way to remove one.
QStringList UploadJob::cleanUpArguments() const
{
    const QString empty = setFolder() + QLatin1String(UploadNames::emptyFolder) + QLatin1Char('/');
    QStringList options = m_target.options();
    options.removeAll(QStringLiteral("--fsync"));
    return QStringList{QStringLiteral("--recursive"),
                       QStringLiteral("--delete"),
                       QStringLiteral("--no-motd"),
                       QStringLiteral("--protect-args"),
                       everythingIn(stagingFolder().toLatin1().constData()),
                       QStringLiteral("--exclude=*")} +
           options + QStringList{QStringLiteral("--"), empty, m_target.destination()};
}

QString UploadJob::stagingFolder() const
{
    return QLatin1String(UploadNames::stagingPrefix) + m_set.sender;
}

QString UploadJob::setFolder() const
{
    return m_set.folder->path() + QLatin1Char('/');
}

bool UploadJob::isPlacing() const
{
    return m_state == State::Running && m_step > Step::Assemble;
}

QString UploadJob::linkAtTarget() const
{
    const QStringList links = namesInListing(m_rsync.result().output, "l");
    for (const char *folder : {UploadNames::channelFolder, UploadNames::stageFolder}) {
        if (links.contains(QLatin1String(folder)))
            return QLatin1String(folder);
    }
    return {};
}

void UploadJob::onLooked()
{
    const QString link = linkAtTarget();
    if (!link.isEmpty()) {
        // Some versions of rsync replace it, others refuse to follow it.
        end(State::Failed,
            tr("The folder \"%1\" of the target is a link. The target keeps what it had.")
                .arg(link));
        return;
    }
    const QStringList names = namesInListing(m_rsync.result().output, "d-");
    const bool isOurs = names.contains(QLatin1String(UploadNames::markFile));
    const bool isFilled = names.contains(QLatin1String(UploadNames::channelFolder)) ||
                          names.contains(QLatin1String(UploadNames::stageFolder));
    if (!isOurs && isFilled)
        m_keptFolder =
            QLatin1String(UploadNames::keptPrefix) +
            QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("yyyyMMdd-hhmmss"));
    startStep(Step::Assemble);
}

void UploadJob::onStepDone()
{
    switch (m_step) {
    case Step::Find:
        startStep(Step::Look);
        return;
    case Step::Look:
        onLooked();
        return;
    case Step::Assemble:
        startStep(Step::PlaceStages);
        return;
    case Step::PlaceStages:
        startStep(Step::PlaceAll);
        return;
    case Step::PlaceAll:
        startStep(Step::CleanUp);
        return;
    case Step::CleanUp:
        break;
    }
    m_percent = percentOfAll;
    end(State::Done,
        m_keptFolder.isEmpty()
            ? tr("Complete.")
            : tr("Complete. What was there before is in the folder \"%1\".").arg(m_keptFolder));
}

void UploadJob::end(State state, const QString &message)
{
    m_state = state;
    m_message = message;
    m_set = {};
    Q_EMIT changed();
}

} // namespace Zavo
