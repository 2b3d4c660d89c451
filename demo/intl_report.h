// The demo's report on translated texts: the panel's strings through its message catalogue.
#pragma once

void ReportTranslations();
