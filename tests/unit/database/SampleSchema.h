#pragma once

#include "database/Schema.h"

/// Two tables with every kind of field: one by a text, one by a text and a number.
inline const QmChart6::Schema& SampleSchema() {
    using namespace QmChart6;
    const auto text = [](const char* letters) { return QString::fromLatin1(letters); };
    static const Schema schema{
        {.name = text("Things"),
         .fields = {{text("Name"), FieldKind::Text},
                    {text("Comment"), FieldKind::Text},
                    {text("Good"), FieldKind::Boolean},
                    {text("Small"), FieldKind::Integer},
                    {text("Large"), FieldKind::Long},
                    {text("Broken"), FieldKind::Real}},
         .indexes = {{text("PrimaryKey"), {text("Name")}, true}}},
        {.name = text("Parts"),
         .fields = {{text("Name"), FieldKind::Text},
                    {text("Number"), FieldKind::Integer},
                    {text("Comment"), FieldKind::Text}},
         .indexes = {{text("PrimaryKey"), {text("Name"), text("Number")}, true},
                     {text("ByName"), {text("Name")}, false}}},
    };
    return schema;
}
