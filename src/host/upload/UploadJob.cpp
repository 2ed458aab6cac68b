#include "upload/UploadJob.h"

#include "upload/FolderLookup.h"
#include "upload/TargetKeeper.h"
#include "upload/UploadArguments.h"
#include "upload/UploadNames.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>

namespace Zavo {

namespace {
constexpr int percentOfAssembling = 95;
constexpr int percentOfAll = 100;
constexpr int longestPlacingMs = 20000; // at the end of the program
} // namespace

UploadJob::UploadJob(const UploadTarget &target, const std::shared_ptr<BackupStore> &store,
                     QObject *parent)
    : QObject(parent)
    , m_target(target)
    , m_message(tr("Waiting"))
    , m_store(store)
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
    else if (m_state == State::Running && m_step == Step::Keep)
        m_keeper->cancel();
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
    m_details += result.details;
    if (m_step == Step::Fetch && result.isPartial) {
        m_keepingFailed = true;
        onStepDone();
        return;
    }
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
    case Step::Fetch:
    case Step::Keep:
        return tr("Keeping what is replaced");
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
    const UploadArguments arguments(m_target, m_set);
    switch (m_step) {
    case Step::Find:
    case Step::Look:
        return arguments.look();
    case Step::Assemble:
        return arguments.assemble();
    case Step::Fetch:
    case Step::Keep:
        return arguments.fetchReplaced(m_keeper->folder());
    case Step::PlaceStages:
        return arguments.placeStages(m_keptFolder);
    case Step::PlaceAll:
        return arguments.placeAll(m_keptFolder);
    case Step::CleanUp:
        break;
    }
    return arguments.cleanUp();
}

bool UploadJob::isPlacing() const
{
    return m_state == State::Running && m_step >= Step::PlaceStages;
}

QString UploadJob::linkAtTarget() const
{
    const QStringList links = UploadArguments::namesInListing(m_rsync.result().output, "l");
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
    const QStringList names = UploadArguments::namesInListing(m_rsync.result().output, "d-");
    const bool isOurs = names.contains(QLatin1String(UploadNames::markFile));
    m_hasChannels = names.contains(QLatin1String(UploadNames::channelFolder));
    const bool isFilled = m_hasChannels || names.contains(QLatin1String(UploadNames::stageFolder));
    if (!isOurs && isFilled)
        m_keptFolder =
            QLatin1String(UploadNames::keptPrefix) +
            QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("yyyyMMdd-hhmmss"));
    startStep(Step::Assemble);
}

void UploadJob::onAssembled()
{
    if (!m_hasChannels) {
        startStep(Step::PlaceStages);
        return;
    }
    m_keeper = std::make_unique<TargetKeeper>(m_set.folder->path(), m_store);
    if (m_keeper->folder().isEmpty()) {
        end(State::Failed, tr("There is no room to keep what is replaced. The target keeps what it "
                              "had."));
        return;
    }
    connect(m_keeper.get(), SIGNAL(finished()), this, SLOT(onReplacedKept()), Qt::QueuedConnection);
    startStep(Step::Fetch);
}

void UploadJob::onFetched()
{
    m_step = Step::Keep;
    m_keeper->start();
}

void UploadJob::onReplacedKept()
{
    if (m_state != State::Running || m_step != Step::Keep)
        return;
    if (m_keeper->isCancelled()) {
        end(State::Cancelled, tr("Cancelled. The target keeps what it had."));
        return;
    }
    m_keepingFailed = m_keepingFailed || !m_keeper->problem().isEmpty();
    if (m_keeper->count() > 0)
        m_details.append(tr("%n channel file(s) that were replaced or removed there are among the "
                            "safety copies.",
                            nullptr, m_keeper->count()));
    if (!m_keeper->problem().isEmpty())
        m_details.append(m_keeper->problem());
    m_keeper.reset();
    startStep(Step::PlaceStages);
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
        onAssembled();
        return;
    case Step::Fetch:
    case Step::Keep:
        onFetched();
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
    end(State::Done, doneMessage());
}

QString UploadJob::doneMessage() const
{
    if (!m_keptFolder.isEmpty())
        return tr("Complete. What was there before is in the folder \"%1\".").arg(m_keptFolder);
    return m_keepingFailed
               ? tr("Complete. No safety copy could be made of all that was replaced there.")
               : tr("Complete.");
}

void UploadJob::end(State state, const QString &message)
{
    m_state = state;
    m_message = message;
    m_keeper.reset();
    m_set = {};
    Q_EMIT changed();
}

} // namespace Zavo
