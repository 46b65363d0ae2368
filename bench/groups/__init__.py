"""A file for each group of benchmarks: run() measures on this machine alone, run_in_lab() in a private Tor network of its own."""
