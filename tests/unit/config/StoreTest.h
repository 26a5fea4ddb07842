#pragma once

#include "chart/DefaultLook.h"
#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "config/ConfigurationStore.h"
#include "support/Raises.h"
#include "support/ScriptedDesktop.h"
#include "support/TestStore.h"
#include "support/TestViewer.h"
#include "text/LocalText.h"

#include <cmath>

inline QString T(const char* text) {
    return QString::fromUtf8(text);
}

/// The store's procedures on an empty database of each engine, nobody but the script at the desk.
class StoreTest : public EngineTest {
protected:
    StoreTest() { QmChart6::SetConfigurationFolder(store.Folder()); }

    /// Gives the viewer a table of numbers and the default look.
    static void Fill(TestViewer& one, int rows, int columns) {
        QmChart6::Chart& chart = one.Model();
        chart.SetGridSize(rows, columns);
        for (int row = 1; row <= rows; ++row)
            for (int column = 1; column <= columns; ++column)
                chart.DataGrid.SetValue(row, column, row * 1.5 + std::sin(column * row));
        for (int column = 1; column <= columns; ++column)
            chart.DataGrid.SetColumnLabel(column, QStringLiteral("Column %1").arg(column));
        QmChart6::ApplyDefaultLook(chart);
    }
    void Save(TestViewer& one, const char* name) {
        one.config = T(name);
        QmChart6::SaveConfiguration(one);
    }
    [[nodiscard]] int Count(const char* table) const { return store.Count(T(table)); }
    [[nodiscard]] QStringList Errors() const {
        QStringList texts;
        for (const auto& message : desktop.messages) texts.append(message.text);
        return texts;
    }

    TestStore store{GetParam(), QmChart6::ConfigurationSchema()};
    ScriptedDesktop desktop;
    QmChart6::ScopedDesktop scope{desktop};
    TestViewer viewer;
};
