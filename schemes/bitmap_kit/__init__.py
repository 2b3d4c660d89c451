"""Drawing and file-writing helpers for the scheme bitmap generator."""
