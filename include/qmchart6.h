/* QmChart6 for hosts in C, and for bindings of other languages: charts of a host's tables in windows, on
 * paper and as pictures. Nothing of Qt or C++ is seen here, and nothing is thrown.
 *
 * All texts are UTF-8 and end in a 0; a null pointer stands for "". All calls are made on one thread, the
 * first that made any. Every function that may fail returns 0, or the number of the error;
 * qmchart6_error_text tells its sentence. Structs begin with their own size, so that they may grow: set it to
 * sizeof, and all else to 0 before what is known.
 */
#ifndef QMCHART6_H
#define QMCHART6_H

#include <stddef.h>
#include <stdint.h>

#if defined(__GNUC__)
#define QMCHART6_C_EXPORT __attribute__((visibility("default")))
#else
#define QMCHART6_C_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** Errors, by the numbers that all hosts get. What stored looks raise besides is told in
 * qmchart6/RuntimeError.h. */
enum {
    QMCHART6_OK = 0,
    QMCHART6_INVALID_PROCEDURE_CALL = 5,
    QMCHART6_OVERFLOW = 6,
    QMCHART6_OUT_OF_MEMORY = 7,
    QMCHART6_SUBSCRIPT_OUT_OF_RANGE = 9,
    QMCHART6_TYPE_MISMATCH = 13,
    QMCHART6_FILE_NOT_FOUND = 53,
    QMCHART6_DISK_FULL = 61,
    QMCHART6_PERMISSION_DENIED = 70,
    QMCHART6_PATH_FILE_ACCESS = 75,
    QMCHART6_PATH_NOT_FOUND = 76,
    QMCHART6_INVALID_USE_OF_NULL = 94,
    QMCHART6_RESOURCE_NOT_FOUND = 326,
    QMCHART6_INVALID_PROPERTY_VALUE = 380,
    QMCHART6_PRINTER_ERROR = 482
};

/** What is taken from the stored look that a chart is bound to. */
enum { QMCHART6_NO = 0, QMCHART6_NO_TITLES = 1, QMCHART6_YES = 2 };

/** Languages of all that a person reads. */
enum { QMCHART6_ENGLISH = 0, QMCHART6_PORTUGUESE = 1, QMCHART6_SPANISH = 2, QMCHART6_ITALIAN = 3 };

/** The charts of a process. Any number of these may be had; all of them show the same viewers. */
typedef struct qmchart6_charts qmchart6_charts;

/** A table of numbers in the host's memory, which is only read, and only during the call. */
typedef struct qmchart6_table {
    size_t size;           /**< sizeof(qmchart6_table) */
    const double* values;  /**< the cell of the first row and column; not-a-number is a missing value */
    int64_t rows;          /**< 0 to 32,767 */
    int64_t columns;       /**< 0 to 32,767 */
    int64_t row_stride;    /**< from a row to the next, in doubles; may be negative */
    int64_t column_stride; /**< from a column to the next, in doubles; may be negative */
    const char* const* row_labels;    /**< as many as rows, or null for none */
    const char* const* column_labels; /**< as many as columns, or null for none */
} qmchart6_table;

typedef struct qmchart6_titles {
    size_t size; /**< sizeof(qmchart6_titles) */
    const char* chart;
    const char* row;    /**< the category axis */
    const char* column; /**< the depth axis */
    const char* value;  /**< both value axes */
} qmchart6_titles;

/** A picture's size: pixels of which 96 make an inch; 0 by 0 is that of the viewer. */
typedef struct qmchart6_picture_size {
    size_t size;    /**< sizeof(qmchart6_picture_size) */
    int32_t width;  /**< 1 to 16,384 */
    int32_t height; /**< 1 to 16,384 */
    int32_t ratio;  /**< of "png" and "bmp": device pixels to a pixel, 1 to 9; 0 is 1 */
} qmchart6_picture_size;

/** The library's version, "major.minor.patch". */
QMCHART6_C_EXPORT const char* qmchart6_version(void);

/** Null only where there is no memory. */
QMCHART6_C_EXPORT qmchart6_charts* qmchart6_new(void);
/** Viewers stay as they are. Null does nothing. */
QMCHART6_C_EXPORT void qmchart6_free(qmchart6_charts* charts);
/** What the last call that failed through `charts` had to say, until the next one fails. Never null. */
QMCHART6_C_EXPORT const char* qmchart6_error_text(const qmchart6_charts* charts);

/* The members of the automation class; include/qmchart6/QMChartArray.h tells more of each. */

/** The folder of the stored looks: a path that ends in a separator, or
 * "postgresql://user@host:port/database/". */
QMCHART6_C_EXPORT int32_t qmchart6_set_config_path(qmchart6_charts* charts, const char* folder);
/** Shows the table in the viewer of that graph id, which is opened where there is none. Arrays are handed
 * over from 1, so that the rule for the decimals of values, which looks at the elements from 1 on, sees all
 * of them. */
QMCHART6_C_EXPORT int32_t qmchart6_make_graph(qmchart6_charts* charts, const char* graph_id,
                                              const qmchart6_table* table, const qmchart6_titles* titles,
                                              int32_t language, int32_t use_config);
/** Closes the viewer of that graph id; an unknown id does nothing. */
QMCHART6_C_EXPORT int32_t qmchart6_kill_graph(qmchart6_charts* charts, const char* graph_id);
QMCHART6_C_EXPORT int32_t qmchart6_print_graph(qmchart6_charts* charts, const char* graph_id,
                                               const qmchart6_table* table, const qmchart6_titles* titles,
                                               int32_t use_config);
/** Saves the picture in the format of the name's extension: .bmp, .png, .svg, .pdf, otherwise a metafile. An
 * empty name asks the person at the desk. `used`, if not null, gets the name that was used, to be freed with
 *  qmchart6_free_text. */
QMCHART6_C_EXPORT int32_t qmchart6_save_graph(qmchart6_charts* charts, const char* graph_id,
                                              const qmchart6_table* table, const qmchart6_titles* titles,
                                              int32_t use_config, const char* file_name, char** used);
/** A shortcut to qmchart6_make_graph with Spanish texts and the default look; `config_id` and the column
 * title are not used. */
QMCHART6_C_EXPORT int32_t qmchart6_mk_gr(qmchart6_charts* charts, const char* graph_id, const char* config_id,
                                         const qmchart6_table* table, const qmchart6_titles* titles);

/* Beside the members. */

/** A picture of an open chart, in memory. `format` is "png", "bmp", "svg", "pdf" or "emf"; `size` may be
 * null. The bytes are freed with qmchart6_free_bytes. Error 326 where no chart of that id is open. */
QMCHART6_C_EXPORT int32_t qmchart6_picture(qmchart6_charts* charts, const char* graph_id, const char* format,
                                           const qmchart6_picture_size* size, uint8_t** bytes, size_t* count);
QMCHART6_C_EXPORT void qmchart6_free_bytes(uint8_t* bytes);
QMCHART6_C_EXPORT void qmchart6_free_text(char* text);

/** The ids of the open charts, one after the other, each ended by a 0, all by another; freed with
 * qmchart6_free_text. */
QMCHART6_C_EXPORT int32_t qmchart6_open_graphs(qmchart6_charts* charts, char** ids);

/** Called with the graph id when a viewer was closed, by whomever. */
typedef void (*qmchart6_closed)(const char* graph_id, void* data);
/** One handler for all viewers; null for none. */
QMCHART6_C_EXPORT int32_t qmchart6_on_closed(qmchart6_charts* charts, qmchart6_closed handler, void* data);

/** From here on values have as many decimals as they need; 0 takes it back. */
QMCHART6_C_EXPORT int32_t qmchart6_formats_follow_data(qmchart6_charts* charts, int32_t on);
/** Charts are made in this size from here on, in pixels of which so many make an inch; 0, 0 leaves it to the
 * look. */
QMCHART6_C_EXPORT int32_t qmchart6_set_chart_size(qmchart6_charts* charts, int32_t width, int32_t height,
                                                  int32_t pixels_per_inch);
/** This chart gets this look, given as JSON, whenever it is made with a stored look. */
QMCHART6_C_EXPORT int32_t qmchart6_use_look(qmchart6_charts* charts, const char* graph_id, const char* json);
/** The printer that graphs are printed on; "" asks the person at the desk. */
QMCHART6_C_EXPORT int32_t qmchart6_set_printer(qmchart6_charts* charts, const char* name);

/* Events, for hosts whose own loop is none of Qt's. One that runs GLib's default context needs none of these.
 */

/** Whether windows can be shown, into `on`: 0 or 1. */
QMCHART6_C_EXPORT int32_t qmchart6_has_display(qmchart6_charts* charts, int32_t* on);
/** Handles events until the last viewer was closed; returns at once without a display. */
QMCHART6_C_EXPORT int32_t qmchart6_run(qmchart6_charts* charts);
/** Handles events for so many milliseconds; 0 handles those that wait. Other loops call it from a timer. */
QMCHART6_C_EXPORT int32_t qmchart6_pump(qmchart6_charts* charts, int32_t milliseconds);

#ifdef __cplusplus
}
#endif

#endif
