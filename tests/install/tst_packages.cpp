#include "Command.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

/// Makes the Debian packages of the build, installs them into a system of their own, uses the
/// program there, and removes them again.
class tst_Packages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void makesEveryPackage();
    void lintianFindsNothing();
    void everyRuleNamesAComponent();
    void packsWhateverIsInstalled();
    void librariesOfArchitecturesLieSideBySide();
    void saysWhatItNeeds_data();
    void saysWhatItNeeds();
    void tellsOthersHowToDependOnTheLibraries();
    void holdsNoPathOfTheBuild();
    void programTellsItsVersion();
    void programChecks_data();
    void programChecks();
    void programDrawsItsWindow();
    void leavesNothingBehind();

private:
    QString packageFile(const QString &package) const;
    void makeSite() const;
    QString systemPath(const QString &path) const { return m_system + path; }
    Command runInstalled(const QStringList &arguments) const;
    Command dpkg(const QStringList &arguments) const;

    QTemporaryDir m_folder;
    QString m_packages;
    QString m_system;
};

namespace {

const QString libraryPackage = QStringLiteral("libzvscheduleeditor" ZAVO_ABI_VERSION);
const QString developmentPackage = QStringLiteral("libzvscheduleeditor-dev");
const QString documentationPackage = QStringLiteral("libzvscheduleeditor-doc");
const QString programPackage = QStringLiteral("zavo-schedule-editor");

QStringList packageNames()
{
    QStringList names{developmentPackage, libraryPackage, programPackage};
    if (ZAVO_HAS_DOCUMENTATION)
        names.append(documentationPackage);
    return names;
}

/// The files and links below the folder, by their paths from there.
QSet<QString> filesBelow(const QString &folder)
{
    QSet<QString> files;
    QDirIterator entries(folder, QDir::Files | QDir::System | QDir::Hidden,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        files.insert(QDir(folder).relativeFilePath(entries.next()));
    return files;
}

QByteArray joined(const QSet<QString> &names)
{
    QStringList sorted = names.values();
    sorted.sort();
    return sorted.join(QLatin1Char('\n')).toUtf8();
}

Command installBuild(const QStringList &options, const QString &prefix)
{
    const QStringList arguments{QStringLiteral("--install"), QStringLiteral(ZAVO_BINARY_DIR),
                                QStringLiteral("--prefix"), prefix};
    return Command::run(QStringLiteral(ZAVO_CMAKE), arguments + options);
}

Command pack(const QString &folder, const QStringList &options = {})
{
    const QStringList arguments{QStringLiteral("--config"),
                                QStringLiteral(ZAVO_BINARY_DIR "/CPackConfig.cmake"),
                                QStringLiteral("-B"), folder};
    return Command::run(QStringLiteral(ZAVO_CPACK), arguments + options);
}

QString field(const QString &package, const QString &name)
{
    const QStringList arguments{QStringLiteral("--field"), package, name};
    return QString::fromUtf8(Command::run(QStringLiteral("dpkg-deb"), arguments).output).trimmed();
}

/// The one package in the folder whose name begins like that; empty if it is not there.
QString packageIn(const QString &folder, const QString &package)
{
    const QStringList found =
        QDir(folder).entryList({package + QStringLiteral("_*.deb")}, QDir::Files);
    return found.size() == 1 ? QDir(folder).filePath(found.constFirst()) : QString();
}

} // namespace

QString tst_Packages::packageFile(const QString &package) const
{
    return packageIn(m_packages, package);
}

Command tst_Packages::runInstalled(const QStringList &arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_LIBRARY_PATH"),
                       systemPath(QStringLiteral("/usr/" ZAVO_LIBDIR)));
    return Command::run(systemPath(QStringLiteral("/usr/bin/zavo-schedule-editor")), arguments,
                        environment);
}

Command tst_Packages::dpkg(const QStringList &arguments) const
{
    // Small systems are set up to leave out manuals.
    QStringList words{QStringLiteral("dpkg"), QStringLiteral("--path-include=/*"),
                      QStringLiteral("--root=") + m_system,
                      QStringLiteral("--log=") + m_folder.filePath(QStringLiteral("dpkg.log"))};
    words += arguments;
    if (geteuid() != 0)
        words.prepend(QStringLiteral("fakeroot"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"), environment.value(QStringLiteral("PATH")) +
                                                   QStringLiteral(":/usr/sbin:/sbin"));
    const QString program = words.takeFirst();
    Command command = Command::run(program, words, environment);
    // The packages of this machine are known there, their files are not.
    static const QRegularExpression noFiles(
        QStringLiteral("dpkg: warning: files list file for package [^\n]*\n"));
    command.output = QString::fromUtf8(command.output).remove(noFiles).toUtf8();
    return command;
}

/// The system knows the packages of this machine, so that dpkg looks for what ours depend on.
void tst_Packages::initTestCase()
{
    QVERIFY(m_folder.isValid());
    m_packages = m_folder.filePath(QStringLiteral("packages"));
    const Command packed = pack(m_packages);
    QVERIFY2(packed.exitCode == 0, packed.output.constData());

    m_system = m_folder.filePath(QStringLiteral("system"));
    const QString database = systemPath(QStringLiteral("/var/lib/dpkg"));
    QVERIFY(QDir().mkpath(database + QStringLiteral("/updates")));
    QVERIFY(QDir().mkpath(database + QStringLiteral("/info")));
    QVERIFY(
        QFile::copy(QStringLiteral("/var/lib/dpkg/status"), database + QStringLiteral("/status")));
    QStringList files;
    for (const QString &package : packageNames())
        files.append(packageFile(package));
    const Command installed = dpkg(QStringList{QStringLiteral("--install")} + files);
    QVERIFY2(installed.exitCode == 0, installed.output.right(700).constData());
}

void tst_Packages::makesEveryPackage()
{
    for (const QString &package : packageNames())
        QVERIFY2(!packageFile(package).isEmpty(), qPrintable(package));
    QCOMPARE(QDir(m_packages).entryList({QStringLiteral("*.deb")}).size(), packageNames().size());
}

void tst_Packages::lintianFindsNothing()
{
    QStringList arguments{QStringLiteral("--display-info"), QStringLiteral("--pedantic"),
                          QStringLiteral("--allow-root")};
    for (const QString &package : packageNames())
        arguments.append(packageFile(package));
    const Command lintian = Command::run(QStringLiteral("lintian"), arguments);
    // The preset for packages has the flags that harden binaries.
    static const QRegularExpression hardening(
        QStringLiteral("^I: [a-z0-9.-]+: hardening-no-(bindnow|fortify-functions) "));
    QStringList found =
        QString::fromUtf8(lintian.output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    found.erase(std::remove_if(found.begin(), found.end(),
                               [](const QString &line) { return line.contains(hardening); }),
                found.end());
    QCOMPARE(found.join(QLatin1Char('\n')), QString());
    QCOMPARE(lintian.exitCode, 0);
}

void tst_Packages::everyRuleNamesAComponent()
{
    const QString prefix = m_folder.filePath(QStringLiteral("unspecified"));
    const Command installed =
        installBuild({QStringLiteral("--component"), QStringLiteral("Unspecified")}, prefix);
    QVERIFY2(installed.exitCode == 0, installed.output.right(700).constData());
    QCOMPARE(joined(filesBelow(prefix)), QByteArray());
}

void tst_Packages::packsWhateverIsInstalled()
{
    const QString prefix = m_folder.filePath(QStringLiteral("installed"));
    const Command installed = installBuild({}, prefix);
    QVERIFY2(installed.exitCode == 0, installed.output.right(700).constData());
    QSet<QString> missing = filesBelow(prefix);
    QVERIFY(missing.size() > 40);
    for (const QString &file : filesBelow(systemPath(QStringLiteral("/usr")))) {
        missing.remove(file);
        if (file.endsWith(QLatin1String(".gz")))
            missing.remove(file.chopped(3));
    }
    QCOMPARE(joined(missing), QByteArray());
}

void tst_Packages::saysWhatItNeeds_data()
{
    QTest::addColumn<QString>("package");
    QTest::addColumn<QString>("needed");
    for (const auto *needed : {"libqt5core5a", "libqt5widgets5", "libqt5svg5", "libkf5archive5"})
        QTest::addRow("library %s", needed) << libraryPackage << QString::fromLatin1(needed);
    for (const auto *needed : {"libqt5core5a", "libkf5archive5", "libkf5calendarcore5abi2", "rsync",
                               "qttranslations5-l10n", "hicolor-icon-theme"})
        QTest::addRow("program %s", needed) << programPackage << QString::fromLatin1(needed);
    QTest::newRow("headers") << developmentPackage << QStringLiteral("qtbase5-dev");
    const QString own = libraryPackage + QStringLiteral(" (= " ZAVO_VERSION "-0zavo1)");
    QTest::newRow("headers to libraries") << developmentPackage << own;
    QTest::newRow("program to libraries") << programPackage << own;
}

/// As in the build for packages, whose libraries lie in the folder of their architecture.
void tst_Packages::librariesOfArchitecturesLieSideBySide()
{
    const QString folder = m_folder.filePath(QStringLiteral("side by side"));
    const Command packed =
        pack(folder, {QStringLiteral("-D"), QStringLiteral("CPACK_COMPONENTS_ALL=Runtime"),
                      QStringLiteral("-D"), QStringLiteral("CPACK_ZAVO_IS_MULTIARCH=ON")});
    QVERIFY2(packed.exitCode == 0, packed.output.constData());
    const QString package = packageIn(folder, libraryPackage);
    QCOMPARE(field(package, QStringLiteral("Multi-Arch")), QStringLiteral("same"));
    QCOMPARE(field(package, QStringLiteral("Version")), QStringLiteral(ZAVO_VERSION "-0zavo1"));
}

void tst_Packages::saysWhatItNeeds()
{
    QFETCH(QString, package);
    QFETCH(QString, needed);
    const QString depends = field(packageFile(package), QStringLiteral("Depends"));
    const QStringList entries = depends.split(QStringLiteral(", "));
    const bool found = std::any_of(entries.cbegin(), entries.cend(), [&](const QString &entry) {
        return entry == needed || entry.startsWith(needed + QLatin1Char(' '));
    });
    QVERIFY2(found, qPrintable(depends));
}

void tst_Packages::tellsOthersHowToDependOnTheLibraries()
{
    const auto control = [this](const QString &name) {
        return Command::run(QStringLiteral("dpkg-deb"),
                            {QStringLiteral("--info"), packageFile(libraryPackage), name});
    };
    const QByteArray shlibs = control(QStringLiteral("shlibs")).output;
    for (const auto *library : {"libZvCore", "libZvEditorCommon", "libZvScheduleEditor"}) {
        const QString line = QStringLiteral("%1 " ZAVO_ABI_VERSION " %2 (>= " ZAVO_VERSION)
                                 .arg(QLatin1String(library), libraryPackage);
        QVERIFY2(shlibs.contains(line.toUtf8()), shlibs.constData());
    }
    QCOMPARE(control(QStringLiteral("triggers")).output, QByteArray("activate-noawait ldconfig\n"));
    QVERIFY(control(QStringLiteral("postinst")).exitCode != 0);
}

/// Texts that are installed, such as the CMake package, work on other machines.
void tst_Packages::holdsNoPathOfTheBuild()
{
    const QString root = systemPath(QStringLiteral("/usr"));
    for (const QString &name : filesBelow(root)) {
        QFile file(QDir(root).filePath(name));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(name));
        const QByteArray content = file.readAll();
        if (!content.startsWith("\177ELF"))
            QVERIFY2(!content.contains(ZAVO_SOURCE_DIR), qPrintable(name));
    }
}

/// The channels of the example data that have stages at all hours.
void tst_Packages::makeSite() const
{
    const QString examples = QStringLiteral(ZAVO_SOURCE_DIR "/examples/data/");
    const QString site = m_folder.filePath(QStringLiteral("site/"));
    QVERIFY(QDir().mkpath(site + QStringLiteral("channel")));
    const Command copied = Command::run(
        QStringLiteral("cp"), {QStringLiteral("-R"), examples + QStringLiteral("stage"), site});
    QVERIFY2(copied.exitCode == 0, copied.output.constData());
    for (const auto *name : {"channel/channel.xml", "channel/channel0.xml"})
        QVERIFY(QFile::copy(examples + QLatin1String(name), site + QLatin1String(name)));
}

void tst_Packages::programTellsItsVersion()
{
    const Command version = runInstalled({QStringLiteral("--version")});
    QCOMPARE(version.exitCode, 0);
    QCOMPARE(version.output.trimmed(), QByteArray("zavo-schedule-editor " ZAVO_VERSION));
}

void tst_Packages::programChecks_data()
{
    makeSite();
    QTest::addColumn<QString>("dataFolder");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("nothing found") << m_folder.filePath(QStringLiteral("site")) << 0;
    QTest::newRow("findings") << QStringLiteral(ZAVO_SOURCE_DIR "/examples/data") << 1;
    QTest::newRow("no data") << m_folder.filePath(QStringLiteral("nowhere")) << 2;
}

void tst_Packages::programChecks()
{
    QFETCH(QString, dataFolder);
    QFETCH(int, exitCode);
    const Command checked =
        runInstalled({QStringLiteral("--check"), QStringLiteral("--data-dir"), dataFolder});
    QVERIFY2(checked.exitCode == exitCode, checked.output.constData());
}

void tst_Packages::programDrawsItsWindow()
{
    const QString data = m_folder.filePath(QStringLiteral("data"));
    const QString picture = m_folder.filePath(QStringLiteral("window.png"));
    const Command drawn =
        runInstalled({QStringLiteral("--screenshot"), picture, QStringLiteral("--data-dir"), data});
    QVERIFY2(drawn.exitCode == 0, drawn.output.constData());
    const QImage window(picture);
    QVERIFY(window.width() > 600);
    QVERIFY(window.height() > 400);
}

void tst_Packages::leavesNothingBehind()
{
    const Command removed = dpkg(QStringList{QStringLiteral("--purge")} + packageNames());
    QVERIFY2(removed.exitCode == 0, removed.output.constData());
    QVERIFY(!QFileInfo::exists(systemPath(QStringLiteral("/usr"))));
}

QTEST_GUILESS_MAIN(tst_Packages)
#include "tst_packages.moc"
