#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

/// The shared library of the component gives away one class, and nothing else of its own.
class tst_Exports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void exportsTheEditor();
    void exportsNothingElse();

private:
    QStringList m_symbols;
};

void tst_Exports::initTestCase()
{
    QProcess nm;
    nm.start(QStringLiteral(ZAVO_NM), {QStringLiteral("-DC"), QStringLiteral("--defined-only"),
                                       QStringLiteral(ZAVO_LIBRARY)});
    QVERIFY(nm.waitForFinished());
    QCOMPARE(nm.exitCode(), 0);
    static const QRegularExpression addressAndType(QStringLiteral("^[0-9a-f]+ \\S "));
    for (QString line : QString::fromUtf8(nm.readAllStandardOutput()).split(QLatin1Char('\n')))
        m_symbols.append(line.remove(addressAndType));
    m_symbols.removeAll(QString());
}

void tst_Exports::exportsTheEditor()
{
    for (const auto *symbol :
         {"Zavo::ZvScheduleEditor::ZvScheduleEditor(QMainWindow*)",
          "Zavo::ZvScheduleEditor::exec()", "Zavo::ZvScheduleEditor::close()",
          "Zavo::ZvScheduleEditor::closed()", "Zavo::ZvScheduleEditor::staticMetaObject",
          "vtable for Zavo::ZvScheduleEditor"})
        QVERIFY2(m_symbols.contains(QLatin1String(symbol)), symbol);
}

void tst_Exports::exportsNothingElse()
{
    static const QRegularExpression ours(
        QStringLiteral("^((vtable|typeinfo|typeinfo name) for Zavo::ZvScheduleEditor$|"
                       "Zavo::ZvScheduleEditor::)"));
    QStringList others;
    for (const QString &symbol : qAsConst(m_symbols)) {
        if (!symbol.contains(ours))
            others.append(symbol);
    }
    QVERIFY2(others.isEmpty(), qPrintable(others.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(tst_Exports)
#include "tst_exports.moc"
