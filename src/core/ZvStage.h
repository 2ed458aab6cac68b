#pragma once

#include "ZvCoreExport.h"
#include "ZvStageItem.h"

#include <QColor>
#include <QList>
#include <QMetaType>
#include <QSharedDataPointer>
#include <QSize>
#include <QString>

namespace Zavo {

class ZvStageData;

/// One stage: what a display shows while a band of a schedule lasts. A value; copies share what was
/// read. It holds what is to be seen and leaves the painting to others.
// Derived stages of the suite are deleted as such and handed over as values without what they add.
class ZVCORE_EXPORT ZvStage // clazy:exclude=copyable-polymorphic
{
public:
    /// Largest width and height of a stage and of a picture on it, in pixels.
    static constexpr int MaximumLength = 8192;

    /// A stage without content, bound to the file, which is not touched.
    explicit ZvStage(const QString &filePath = QString());
    ZvStage(const ZvStage &other);            ///< shares what was read
    ZvStage &operator=(const ZvStage &other); ///< shares what was read
    virtual ~ZvStage();

    QString filePath() const; ///< also if there is no such file

    /// True until a file has been read.
    bool isEmpty() const;

    /// Width and height in stage pixels; empty as long as isEmpty().
    QSize size() const;

    QColor background() const; ///< black if the file names none

    /// In the order of painting.
    QList<ZvStageItem> items() const;

    /// Fills the stage from its file: a scene, or with the suffix zstg a package of a scene and its
    /// pictures. False, with the stage as it was, if the file cannot be read or anything in it is
    /// not as it should be. A picture that is missing, damaged, too large or outside the folder of
    /// the stage leaves its item without picture.
    bool readFile();

private:
    QSharedDataPointer<ZvStageData> m_data;
};

} // namespace Zavo

Q_DECLARE_METATYPE(Zavo::ZvStage)
