/* Resources of the tests. */
#define IDS_TEST_PLAIN 110
#define IDS_TEST_FORMAT 111
#define IDS_TEST_MISSING 119
