// Copyright Velmorant. All Rights Reserved.
// Stands in for the sources of a module that consists of headers only: an object library needs at least one.
