// SPDX-License-Identifier: GPL-3.0-or-later
// The files of a OneRoster archive and the columns of each, in the order that readers ask for.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tallyroll {

struct OneRosterFile {
  std::string_view name;     // "users"
  std::string_view columns;  // behind sourcedId, status and dateLastModified; empty: never written
};

inline constexpr std::array kOneRosterFiles = {
    OneRosterFile{"academicSessions", "title,type,startDate,endDate,parentSourcedId,schoolYear"},
    OneRosterFile{"categories", "title,weight"},
    OneRosterFile{"classes",
                  "title,grades,courseSourcedId,classCode,classType,location,schoolSourcedId,"
                  "termSourcedIds,subjects,subjectCodes,periods"},
    OneRosterFile{"classResources", ""},
    OneRosterFile{"courseResources", ""},
    OneRosterFile{"courses",
                  "schoolYearSourcedId,title,courseCode,grades,orgSourcedId,subjects,subjectCodes"},
    OneRosterFile{"demographics", ""},
    OneRosterFile{"enrollments",
                  "classSourcedId,schoolSourcedId,userSourcedId,role,primary,beginDate,endDate"},
    OneRosterFile{"lineItemLearningObjectiveIds", ""},
    OneRosterFile{"lineItems",
                  "title,description,assignDate,dueDate,classSourcedId,categorySourcedId,"
                  "academicSessionSourcedId,resultValueMin,resultValueMax,schoolSourcedId"},
    OneRosterFile{"lineItemScoreScales", ""},
    OneRosterFile{"orgs", "name,type,identifier,parentSourcedId"},
    OneRosterFile{"resources", ""},
    OneRosterFile{"resultLearningObjectiveIds", ""},
    OneRosterFile{"results",
                  "lineItemSourcedId,studentSourcedId,scoreStatus,score,scoreDate,comment,"
                  "textScore,classSourcedId,inProgress,incomplete,late,missing"},
    OneRosterFile{"resultScoreScales", ""},
    OneRosterFile{
        "roles", "userSourcedId,roleType,role,beginDate,endDate,orgSourcedId,userProfileSourcedId"},
    OneRosterFile{"scoreScales", ""},
    OneRosterFile{"userProfiles", ""},
    OneRosterFile{"userResources", ""},
    OneRosterFile{"users",
                  "enabledUser,username,userIds,givenName,familyName,middleName,identifier,email,"
                  "sms,phone,agentSourcedIds,grades,password,userMasterIdentifier,"
                  "preferredGivenName,preferredMiddleName,preferredFamilyName,"
                  "primaryOrgSourcedId,pronouns"},
};

}  // namespace tallyroll
