#pragma once

#include <QSpinBox>

/// One part of a time of day: a spin box from 0 to 59 that wraps, and tells when it did so that the
/// next larger part can follow. It stands outside the namespace so that style sheets find it by its
/// plain name.
class ZvTimeSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    /// What the last change of the value did.
    enum WrapState { NotWrapped = 0, Carried = 1, Borrowed = 2 };

    explicit ZvTimeSpinBox(QWidget *parent = nullptr);

    bool isHourBox() const { return m_isHourBox; }

    /// One of WrapState. Up to date in every slot that is connected to valueChanged(int).
    int wrapState() const { return m_wrapState; }

    /// True in the slots of valueChanged(int) if the value is what a person has typed so far.
    bool isBeingTyped() const;

    /// Notes whether this is the box of the hours, and sets the range from 0 to 24 either way.
    void setIsHourBox(bool isHourBox);

    void stepBy(int steps) override;

Q_SIGNALS:
    /// A step up passed the maximum.
    void carried();
    /// A step down passed the minimum.
    void borrowed();

private Q_SLOTS:
    void onValueChanged(int value);

private:
    bool m_isHourBox = false;
    int m_lastValue = 0;
    int m_stepValue = 0; ///< 0 while nobody steps: a typed value never wraps
    int m_wrapState = NotWrapped;
};
