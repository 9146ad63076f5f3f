#pragma once

#include "FakeOverlayHost.h"
#include "TestIndicator.h"

#include <QObject>

#include <memory>

/// An indicator for each test, with a host that writes down what is asked of it.
class IndicatorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_host = FakeOverlayHost();
        m_indicator = std::make_unique<TestIndicator>(&m_host);
    }
    void cleanup() { m_indicator.reset(); }

protected:
    FakeOverlayHost m_host;
    std::unique_ptr<TestIndicator> m_indicator;
};
