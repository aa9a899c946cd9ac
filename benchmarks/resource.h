#pragma once

#define IDD_BENCH_FORM 100
